// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

#include <vector>

namespace tessera {

/// One text of the tooltip: a single line, shortened in its middle where it is too long, or a
/// wrapping field. Its look is set in the form through the properties.
///
/// The pitch of the lines follows from the size of the letters alone, so that the panels come out
/// alike with every desktop font.
class TooltipField final : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int textPixels READ textPixels WRITE setTextPixels)
    Q_PROPERTY(bool bold READ bold WRITE setBold)
    Q_PROPERTY(bool dimmed READ dimmed WRITE setDimmed)
    Q_PROPERTY(bool wrapping READ wrapping WRITE setWrapping)
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit TooltipField(QWidget* parent = nullptr);

    int textPixels() const { return font().pixelSize(); }
    void setTextPixels(int pixels);
    bool bold() const { return font().bold(); }
    void setBold(bool bold);
    /// Dimmed text is drawn in the palette's placeholder colour.
    bool dimmed() const { return m_dimmed; }
    void setDimmed(bool dimmed);
    bool wrapping() const { return m_wrapping; }
    void setWrapping(bool wrapping);

    /// A carriage return ends a line of a wrapping field.
    const QString& text() const { return m_text; }
    void setText(const QString& text);

    /// Height in points that the whole text takes when it is wrapped at the field's width. For a
    /// text that is higher than the field this is merely some height above the field's.
    double neededHeight() const;

    /// Distance in points from one line to the next.
    int linePitch() const;

    /// What is painted, line by line. A text too long for the field keeps one line for each of
    /// its paragraphs, or when it has only one, its beginning and its end.
    const std::vector<QString>& shownLines() const { return m_shownLines; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    int roomForLines() const;
    void layOut();
    void layOutWrapping();
    void foldIntoRoom(const QString& paragraph);

    QString m_text;
    bool m_dimmed = false;
    bool m_wrapping = false;
    int m_neededLines = 0;
    std::vector<QString> m_shownLines;
};

} // namespace tessera
