// SPDX-License-Identifier: MIT
#include "QuickLook/Summary.h"

#include "Base/DisplayText.h"
#include "Language/SizeText.h"
#include "QuickLook/Reading/PreviewReading.h"
#include "Widgets/MediumDate.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

namespace tessera {

namespace {

/// What file systems that keep no creation dates give instead of one: 1970-01-01 00:00 UTC.
constexpr std::int64_t kNoCreationDate = 0;

class SummaryTexts {
    Q_DECLARE_TR_FUNCTIONS(SummaryTexts)
};

QString dimensionsText(const QSize& size)
{
    return SummaryTexts::tr("%1 × %2").arg(size.width()).arg(size.height());
}

/// Kinds are written to stand inside a sentence; here they stand alone.
QString capitalised(const QString& text)
{
    return text.isEmpty() ? text : text.left(1).toUpper() + text.mid(1);
}

QString reason(const std::error_code& error)
{
    return QString::fromLocal8Bit(error.message().c_str());
}

QString noteOf(const Preview& preview)
{
    if (preview.file.error == std::errc::no_such_file_or_directory) {
        return SummaryTexts::tr("It is not there any more.");
    }
    if (preview.file.error) {
        return SummaryTexts::tr("It cannot be looked at: %1").arg(reason(preview.file.error));
    }
    if (preview.contentError) {
        return SummaryTexts::tr("It cannot be read: %1").arg(reason(preview.contentError));
    }
    if (preview.decoding == RasterOutcome::NotStarted) {
        return SummaryTexts::tr(
            "It cannot be shown: the program tessera-preview cannot be started.");
    }
    if (preview.decoding != RasterOutcome::Whole) {
        return SummaryTexts::tr("It is damaged, or takes too much memory or time to be shown.");
    }
    return preview.pixelSize.isValid()
        ? SummaryTexts::tr("The picture is damaged or too large to be shown.")
        : QString();
}

class RowList {
public:
    explicit RowList(std::vector<Summary::Row>& rows)
        : m_rows(rows)
    {
    }

    void add(const QString& title, const QString& value)
    {
        if (!value.isEmpty()) {
            m_rows.push_back({title, value});
        }
    }

    void addDate(const QString& title, const std::optional<std::int64_t>& seconds)
    {
        add(title, seconds ? mediumDate(*seconds, QLocale()) : QString());
    }

private:
    std::vector<Summary::Row>& m_rows;
};

void addFileRows(RowList& rows, const Preview& preview)
{
    const FileDescription& file = preview.file;
    if (file.kind == FileKind::Regular) {
        rows.add(SummaryTexts::tr("Length"), sizeText(file.length));
    }
    if (preview.pixelSize.isValid()) {
        rows.add(SummaryTexts::tr("Dimensions"), dimensionsText(preview.pixelSize));
    }
    rows.add(SummaryTexts::tr("Leads to"), displayText(file.linkTarget));
    rows.addDate(SummaryTexts::tr("Modified"), file.modified);
    if (file.created != kNoCreationDate) {
        rows.addDate(SummaryTexts::tr("Created"), file.created);
    }
}

} // namespace

Summary summaryOf(const ItemFacts& facts, const Preview* preview)
{
    Summary summary;
    summary.name = facts.name;
    RowList rows(summary.rows);
    if (preview != nullptr) {
        rows.add(SummaryTexts::tr("Kind"), capitalised(preview->kind));
    }
    if (facts.itemCount) {
        rows.add(SummaryTexts::tr("Items"), QLocale().toString(qulonglong{*facts.itemCount}));
    }
    rows.add(SummaryTexts::tr("Size on disk"), sizeText(facts.allocatedBytes));
    if (preview != nullptr) {
        addFileRows(rows, *preview);
        summary.note = noteOf(*preview);
    } else if (!facts.path.empty()) {
        summary.note = SummaryTexts::tr("Loading…");
    }
    return summary;
}

QString captionOf(const ItemFacts& facts, const Preview& preview)
{
    QStringList parts;
    parts << capitalised(preview.kind);
    if (preview.pixelSize.isValid()) {
        parts << dimensionsText(preview.pixelSize);
    }
    const auto* const pages = std::get_if<PreviewPages>(&preview.content);
    const int shownPages = pages == nullptr ? 0 : static_cast<int>(pages->pages.size());
    if (pages != nullptr) {
        parts
            << (pages->pageCount == 1 ? SummaryTexts::tr("1 page")
                                      : SummaryTexts::tr("%Ln pages", nullptr, pages->pageCount));
    }
    parts << sizeText(facts.allocatedBytes);
    if (preview.file.modified) {
        parts << mediumDate(*preview.file.modified, QLocale());
    }
    const auto* const text = std::get_if<PreviewText>(&preview.content);
    if (text != nullptr && text->isCut) {
        parts << SummaryTexts::tr("first %1 shown", "size").arg(sizeText(kPreviewTextBytes));
    } else if (pages != nullptr && shownPages < pages->pageCount) {
        parts << SummaryTexts::tr("first %Ln shown", "pages", shownPages);
    }
    parts.removeAll(QString());
    return parts.join(QStringLiteral("  ·  "));
}

} // namespace tessera
