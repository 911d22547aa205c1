// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/ContentMark.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tessera {

namespace {

using namespace std::string_view_literals;

/// The mark may stand behind some other bytes.
constexpr std::size_t kPdfMarkRoom = 1024;
constexpr std::string_view kPdfMark = "%PDF-";

struct PictureMark {
    std::string_view bytes;
    std::size_t offset = 0;
};

/// Of the formats that are read where a plugin for them is installed. SVG is not among them: a
/// drawing may name other files.
constexpr std::array kPictureMarks{
    PictureMark{"\x89PNG\r\n\x1A\n"sv},
    PictureMark{"\xFF\xD8"sv}, // JPEG
    PictureMark{"GIF8"sv},
    PictureMark{"BM"sv},
    PictureMark{"\0\0\1\0"sv}, // icons
    PictureMark{"\0\0\2\0"sv}, // cursors
    PictureMark{"icns"sv},
    PictureMark{"II*\0"sv}, // TIFF, of either byte order
    PictureMark{"MM\0*"sv},
    PictureMark{"II+\0"sv}, // TIFF beyond 4 GiB
    PictureMark{"MM\0+"sv},
    PictureMark{"WEBP"sv, 8},
    PictureMark{"ftyp"sv, 4}, // AVIF, HEIC, HEIF
    PictureMark{"\0\0\0\x0CjP  "sv}, // JPEG 2000
    PictureMark{"\xFF\x4F\xFF\x51"sv}, // its bare stream
    PictureMark{"\0\0\0\x0CJXL "sv}, // JPEG XL
    PictureMark{"\xFF\x0A"sv}, // its bare stream
    PictureMark{"qoif"sv}};

bool hasMark(std::string_view beginning, const PictureMark& mark)
{
    return beginning.size() >= mark.offset && beginning.substr(mark.offset).starts_with(mark.bytes);
}

/// "P1" to "P6" and a space of some kind: PBM, PGM and PPM.
bool isPortableAnyMap(std::string_view beginning)
{
    return beginning.size() >= 3 && beginning[0] == 'P' && beginning[1] >= '1'
        && beginning[1] <= '6' && " \t\r\n"sv.find(beginning[2]) != std::string_view::npos;
}

} // namespace

ContentMark contentMark(std::string_view beginning)
{
    const bool isPicture = isPortableAnyMap(beginning)
        || std::ranges::any_of(kPictureMarks, [beginning](const PictureMark& mark) {
                               return hasMark(beginning, mark);
                           });
    if (isPicture) {
        return ContentMark::Picture;
    }
    const bool isPdf = beginning.substr(0, kPdfMarkRoom).find(kPdfMark) != std::string_view::npos;
    return isPdf ? ContentMark::Pages : ContentMark::None;
}

} // namespace tessera
