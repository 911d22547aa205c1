// SPDX-License-Identifier: MIT
#include "LedgerPanel/LedgerTexts.h"

#include "Language/PluralNumber.h"
#include "Language/SizeText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

namespace tessera::ledger_texts {

namespace {

using Kind = LedgerLine::Kind;

struct LedgerTexts {
    Q_DECLARE_TR_FUNCTIONS(LedgerTexts)
};

/// There the figure is not the administrator's.
constexpr std::string_view kKeepsForItself = "btrfs";

bool hasBytes(Kind kind)
{
    return kind != Kind::UnreadableFolders && kind != Kind::CoveredFolders
        && kind != Kind::FoldersLeftOut;
}

QString sentences(const QStringList& parts)
{
    return parts.join(QLatin1Char(' '));
}

/// Why there may be more that is deleted and still open.
QString whyAtLeast(const OpenFilesAnswer& open)
{
    if (open.hidesProcesses) {
        return LedgerTexts::tr("There may be more: the system does not tell Tessera what runs.");
    }
    if (open.unreadableProcesses != 0) {
        return LedgerTexts::tr(
                   "There may be more: Tessera may not look into %1 of the programs that run.",
                   nullptr,
                   pluralNumber(open.unreadableProcesses))
            .arg(QLocale().toString(static_cast<qulonglong>(open.unreadableProcesses)));
    }
    if (open.isCutShort) {
        return LedgerTexts::tr("There may be more: not everything could be looked at in time.");
    }
    return LedgerTexts::tr("There may be more, whose size the system does not tell.");
}

QString heldOpen(const LedgerLine& line, const OpenFilesAnswer& open)
{
    QStringList parts{
        open.files.empty()
            ? LedgerTexts::tr("Nothing was found that is deleted and that a program still has "
                              "open.")
            : LedgerTexts::tr("Deleted files that programs still have open. End or restart these "
                              "programs, and the space is free.")};
    if (line.isAtLeast) {
        parts.push_back(whyAtLeast(open));
    }
    return sentences(parts);
}

QString rest(const LedgerLine& line, const LedgerAccount& account)
{
    QStringList parts{
        line.bytes < 0
            ? LedgerTexts::tr("More was found than is in use. That happens where files are "
                              "compressed, share what they take, or changed while they were "
                              "counted.")
            : LedgerTexts::tr("In use, and none of the other lines: journal, records and "
                              "snapshots of the file system, and whatever nobody could see.")};
    if (!account.covered) {
        parts.push_back(
            LedgerTexts::tr("The system does not tell what is hidden below other mounts."));
    }
    return sentences(parts);
}

QString reserved(const LedgerAccount& account)
{
    return account.sizes.type == kKeepsForItself
        ? LedgerTexts::tr("Held back by the file system for its own records.")
        : LedgerTexts::tr("Kept free for the administrator, so that the system goes on when the "
                          "disk is full for everybody else.");
}

std::uint64_t magnitudeOf(std::int64_t bytes)
{
    const auto magnitude = static_cast<std::uint64_t>(bytes);
    return bytes < 0 ? 0 - magnitude : magnitude;
}

QString unreadable(const UnseenFolders& unseen)
{
    const auto mayNotRead = [](const UnseenFolders::Unreadable& folder) {
        return folder.reason == std::errc::permission_denied
            || folder.reason == std::errc::operation_not_permitted;
    };
    QStringList parts{
        LedgerTexts::tr("What is in them is part of the rest; how much that is nobody knows.")};
    if (std::ranges::any_of(unseen.unreadable, mayNotRead)) {
        parts.push_back(LedgerTexts::tr(
            "Tessera may not look into some of them. Frequently Asked Questions, in the Help menu, "
            "says how to scan with more rights."));
    }
    return sentences(parts);
}

} // namespace

QString name(const LedgerLine& line, const LedgerAccount& account)
{
    const QString count = QLocale().toString(static_cast<qulonglong>(line.count));
    switch (line.kind) {
    case Kind::Files:
        return LedgerTexts::tr("Files found, each once");
    case Kind::Folders:
        return LedgerTexts::tr("The folders themselves");
    case Kind::HeldOpen:
        return LedgerTexts::tr("Deleted but still open");
    case Kind::UnreadableFolders:
        return LedgerTexts::tr("Folders that could not be read (%1)").arg(count);
    case Kind::CoveredFolders:
        return LedgerTexts::tr("May be hidden below other mounts (%1)").arg(count);
    case Kind::FoldersLeftOut:
        return LedgerTexts::tr("Left out on purpose (%1)").arg(count);
    case Kind::Rest:
        return LedgerTexts::tr("The file system's own, and the rest");
    case Kind::Reserved:
        return account.sizes.type == kKeepsForItself
            ? LedgerTexts::tr("Reserved by the file system")
            : LedgerTexts::tr("Reserved for the administrator");
    case Kind::Available:
        break;
    }
    return LedgerTexts::tr("Free for you");
}

QString explanation(const LedgerLine& line, const LedgerAccount& account)
{
    switch (line.kind) {
    case Kind::Files:
        return LedgerTexts::tr("What all files take on the disk. A file with several names counts "
                               "once.");
    case Kind::Folders:
        return LedgerTexts::tr("What the folders take themselves, for the names of what is in "
                               "them.");
    case Kind::HeldOpen:
        return heldOpen(line, account.open);
    case Kind::UnreadableFolders:
        return unreadable(account.unseen);
    case Kind::CoveredFolders:
        return LedgerTexts::tr("Something else is mounted there. If files lie below it, they "
                               "cannot be seen, and are part of the rest.");
    case Kind::FoldersLeftOut:
        return LedgerTexts::tr("Stores of backups and of encrypted homes, whose files would count "
                               "twice. What they take is part of the rest.");
    case Kind::Rest:
        return rest(line, account);
    case Kind::Reserved:
        return reserved(account);
    case Kind::Available:
        break;
    }
    return LedgerTexts::tr("What you can still fill.");
}

QString number(const LedgerLine& line)
{
    if (!hasBytes(line.kind)) {
        return LedgerTexts::tr("part of the rest");
    }
    return line.isAtLeast ? LedgerTexts::tr("at least %1").arg(roundedBytes(line.bytes))
                          : roundedBytes(line.bytes);
}

QString exactNumber(const LedgerLine& line)
{
    if (!hasBytes(line.kind)) {
        return {};
    }
    return line.isAtLeast ? LedgerTexts::tr("at least %1").arg(exactBytes(line.bytes))
                          : exactBytes(line.bytes);
}

QString exactBytes(std::int64_t bytes)
{
    const QString number = QLocale().toString(static_cast<qlonglong>(bytes));
    return bytes == 1
        ? LedgerTexts::tr("%1 byte").arg(number)
        : LedgerTexts::tr("%1 bytes", nullptr, pluralNumber(magnitudeOf(bytes))).arg(number);
}

QString roundedBytes(std::int64_t bytes)
{
    const QString size = sizeText(magnitudeOf(bytes));
    return bytes < 0 ? QLocale().negativeSign() + size : size;
}

QString reason(const std::error_code& error)
{
    static constexpr std::array kReasons{
        std::pair{std::errc::permission_denied, QT_TRANSLATE_NOOP("LedgerTexts", "No permission")},
        std::pair{
            std::errc::operation_not_permitted, QT_TRANSLATE_NOOP("LedgerTexts", "No permission")},
        std::pair{
            std::errc::no_such_file_or_directory,
            QT_TRANSLATE_NOOP("LedgerTexts", "Gone meanwhile")},
        std::pair{
            std::errc::not_a_directory,
            QT_TRANSLATE_NOOP("LedgerTexts", "Something else lies there by now")},
        std::pair{
            std::errc::too_many_symbolic_link_levels,
            QT_TRANSLATE_NOOP("LedgerTexts", "A link lies there by now")},
        std::pair{std::errc::io_error, QT_TRANSLATE_NOOP("LedgerTexts", "The disk has an error")},
        std::pair{
            std::errc::timed_out, QT_TRANSLATE_NOOP("LedgerTexts", "The disk gives no answer")},
    };
    const auto* const found = std::ranges::find_if(
        kReasons, [&error](const auto& known) { return error == known.first; });
    return found != kReasons.end() ? QCoreApplication::translate("LedgerTexts", found->second)
                                   : QString::fromLocal8Bit(error.message().c_str());
}

} // namespace tessera::ledger_texts
