// SPDX-License-Identifier: MIT
#include "Start/CommandLine.h"

#include "Base/Url.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace tessera {

namespace {

/// The longest side of a picture in pixels; one more would not fit the image formats.
constexpr double kMaxPixels = 32767;

template <typename Number>
std::optional<Number> parsePositive(std::string_view text)
{
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool isWhole = error == std::errc{} && end == text.data() + text.size();
    if (!isWhole || !(value > 0)) {
        return std::nullopt;
    }
    return value;
}

/// Formats that a picture's name may ask for, and in which none is written.
constexpr std::array<std::string_view, 31> kOtherFormats{
    ".avif", ".bmp",  ".cur", ".eps", ".gif",  ".heic", ".heif", ".icns", ".ico", ".jfif", ".jp2",
    ".jpe",  ".jpeg", ".jpg", ".jxl", ".pbm",  ".pdf",  ".pgm",  ".pnm",  ".ppm", ".ps",   ".psd",
    ".svg",  ".svgz", ".tga", ".tif", ".tiff", ".wbmp", ".webp", ".xbm",  ".xpm"};

bool isOfOtherFormat(std::string_view file)
{
    const std::size_t dot = file.rfind('.');
    const std::string_view suffix = dot == std::string_view::npos ? "" : file.substr(dot);
    return std::any_of(
        kOtherFormats.begin(), kOtherFormats.end(), [suffix](std::string_view format) {
            return suffix.size() == format.size() && startsWithWord(suffix, format);
        });
}

/// Reads the arguments one by one. Raw bytes instead of Qt's parser, which decodes: a folder's
/// name need not be text.
class Parser {
public:
    explicit Parser(std::span<const char* const> arguments)
        : m_arguments(arguments)
    {
    }

    std::variant<CommandLine, CommandLineError> parse()
    {
        while (m_next < m_arguments.size() && m_error.empty()) {
            takeArgument(m_arguments[m_next++]);
        }
        if (m_error.empty() && !asksForText()) {
            checkWhole();
        }
        if (!m_error.empty()) {
            return CommandLineError{m_error};
        }
        return m_result;
    }

private:
    using Action = CommandLine::Action;

    bool asksForText() const
    {
        return m_result.action == Action::PrintHelp || m_result.action == Action::PrintVersion;
    }

    void takeArgument(std::string_view argument)
    {
        if (m_onlyPaths || argument.size() < 2 || argument.front() != '-') {
            takeFolder(argument);
        } else if (argument == "--") {
            m_onlyPaths = true;
        } else if (argument == "--help" || argument == "-h") {
            m_result.action = Action::PrintHelp;
        } else if (argument == "--version") {
            m_result.action = Action::PrintVersion;
        } else if (argument == "--home") {
            takePlace(CommandLine::Place::Home);
        } else if (argument == "--disk") {
            takePlace(CommandLine::Place::Disk);
        } else {
            takeOption(argument);
        }
    }

    void takePlace(CommandLine::Place place)
    {
        m_hasSeveralPlaces |= hasPlace() && m_result.place != place;
        m_result.place = place;
    }

    bool hasPlace() const { return m_result.place != CommandLine::Place::Folder; }

    void takeOption(std::string_view argument)
    {
        const std::size_t equals = argument.find('=');
        const std::string_view name = argument.substr(0, equals);
        const bool isKnown = name == "--picture" || name == "--size" || name == "--scale";
        if (!isKnown) {
            m_error = "unknown option '" + std::string(name) + "'";
            return;
        }
        std::string_view value;
        if (equals != std::string_view::npos) {
            value = argument.substr(equals + 1);
        } else if (m_next < m_arguments.size()) {
            value = m_arguments[m_next++];
        }
        if (value.empty()) {
            m_error = "option '" + std::string(name) + "' needs a value";
        } else if (name == "--picture") {
            takePicture(value);
        } else if (name == "--size") {
            takeSize(value);
        } else {
            takeScale(value);
        }
    }

    /// Desktops name what they open by its path or its URL, and may name several: the last one
    /// counts, as where several are chosen in a dialog.
    void takeFolder(std::string_view folder)
    {
        m_hasSeveralFolders = !m_result.folder.empty();
        m_result.folder = folder;
        if (folder.empty()) {
            m_error = "the folder's name is empty";
        } else if (!m_onlyPaths && Url::isWrittenIn(folder)) {
            takeUrl(folder);
        }
    }

    void takeUrl(std::string_view text)
    {
        const std::optional<Url> url = Url::fromAbsoluteString(text);
        if (!url) {
            m_error = std::string("'").append(text).append("' is no URL of a folder");
            return;
        }
        m_result.folder = url->path();
    }

    void takePicture(std::string_view file)
    {
        m_result.pictureFile = file;
        if (isOfOtherFormat(file)) {
            m_error = "pictures are written as PNG, and '" + m_result.pictureFile
                + "' is the name of another format";
        }
        if (!asksForText()) {
            m_result.action = Action::WritePicture;
        }
    }

    void takeSize(std::string_view text)
    {
        m_hasPictureOption = true;
        const std::size_t cross = text.find('x');
        const auto width = parsePositive<int>(text.substr(0, cross));
        const auto height = cross == std::string_view::npos
            ? std::nullopt
            : parsePositive<int>(text.substr(cross + 1));
        if (!width || !height) {
            m_error = "the size '" + std::string(text) + "' is not of the form 1600x1000";
            return;
        }
        m_result.width = *width;
        m_result.height = *height;
    }

    void takeScale(std::string_view text)
    {
        m_hasPictureOption = true;
        const auto scale = parsePositive<double>(text);
        if (!scale || !std::isfinite(*scale)) {
            m_error = "the scale '" + std::string(text) + "' is not a number above 0";
            return;
        }
        m_result.scale = *scale;
    }

    void checkWhole()
    {
        const bool isPicture = m_result.action == Action::WritePicture;
        const double longest = std::max(m_result.width, m_result.height) * m_result.scale;
        const double shortest = std::min(m_result.width, m_result.height) * m_result.scale;
        if (m_hasSeveralPlaces || (hasPlace() && !m_result.folder.empty())) {
            m_error = "of FOLDER, --home and --disk only one can be shown";
        } else if (isPicture && m_result.folder.empty() && !hasPlace()) {
            m_error = "--picture needs the name of a folder";
        } else if (isPicture && m_hasSeveralFolders) {
            m_error = "--picture takes one folder";
        } else if (!isPicture && m_hasPictureOption) {
            m_error = "--size and --scale go with --picture";
        } else if (longest > kMaxPixels || shortest < 1) {
            m_error = "a picture is from 1 to 32767 pixels wide and high";
        }
    }

    std::span<const char* const> m_arguments;
    std::size_t m_next = 0;
    bool m_onlyPaths = false;
    bool m_hasPictureOption = false;
    bool m_hasSeveralFolders = false;
    bool m_hasSeveralPlaces = false;
    CommandLine m_result;
    std::string m_error;
};

} // namespace

std::uint64_t CommandLine::pictureMemory() const
{
    // Four for the pixel's colour, and the fifth for the file's content, which is much smaller.
    constexpr double kBytesPerPixel = 5;
    return static_cast<std::uint64_t>(
        std::ceil(width * scale) * std::ceil(height * scale) * kBytesPerPixel);
}

std::variant<CommandLine, CommandLineError> parseCommandLine(std::span<const char* const> arguments)
{
    return Parser(arguments).parse();
}

std::string commandLineHelp()
{
    return "Usage: tessera [FOLDER | --home | --disk]\n"
           "  or:  tessera --picture FILE.png [--size WxH] [--scale N] FOLDER\n"
           "\n"
           "Shows where the space in FOLDER goes; lets you choose one if none is named. FOLDER is\n"
           "a path or a file URL; of several the last one is shown.\n"
           "\n"
           "Options:\n"
           "  --home              show your home folder\n"
           "  --disk              show the disk that your home folder is on\n"
           "  --picture FILE.png  write the picture to FILE.png instead of opening a window\n"
           "  --size WxH          width and height of the picture in points (1600x1000)\n"
           "  --scale N           pixels a point, for sharper pictures (1)\n"
           "  --                  what follows are paths, whatever they look like\n"
           "  -h, --help          print this text\n"
           "  --version           print the version\n"
           "\n"
           "Exit status: 0 done, 1 the folder cannot be read or the picture cannot be written,\n"
           "2 the command line makes no sense. Where the standard error is no terminal, a window\n"
           "opens to say that the folder cannot be read, and the status is the window's: 0.\n";
}

} // namespace tessera
