// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "HomeScreen/Grid/CollectionItemView.h"

#include <QColor>

class QLabel;

namespace tessera {

/// What the disks and the locations of the home screen have in common: where they lead, and a
/// background that shows which of them is selected.
class HomeItemView : public CollectionItemView {
    Q_OBJECT

public:
    using CollectionItemView::CollectionItemView;

    const Url& url() const { return m_url; }

    bool selected() const { return m_selected; }
    void setSelected(bool selected) override;

    /// An unavailable item keeps its colours and only becomes paler.
    bool unavailable() const override { return m_unavailable; }
    void setUnavailable(bool unavailable);

    /// Holds the icon.
    virtual QLabel& imageView() const = 0;

    /// How opaque the view is drawn, 0 to 1.
    double alphaValue() const;

protected:
    struct TextColors {
        QColor name;
        QColor detail;
    };

    /// Of the texts on the view, as the selection wants them.
    TextColors textColors() const;

    void setUrl(const Url& url) { m_url = url; }
    void setAlphaValue(double alpha);
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

private:
    void tellScreenReaders();

    /// After textColors() may have changed.
    virtual void updateColors() = 0;
    virtual void updateAlphaValue() = 0;

    Url m_url;
    bool m_selected = false;
    bool m_unavailable = false;
};

} // namespace tessera
