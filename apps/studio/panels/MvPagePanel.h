// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

class MvPageEdits;
class QVBoxLayout;

/// A panel that shows the current page's settings and follows them, as long as somebody sees it.
///
/// While it shows a state, isShowing() holds, so that what its widgets report then is no edit.
class MvPagePanel : public QWidget
{
    Q_OBJECT

public:
    MvPagePanel(MvPageEdits *edits, QWidget *parent);
    ~MvPagePanel() override;

    QSize sizeHint() const override;
    /// As wide as its contents: they scroll up and down, and are never cut at the side.
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Shows the page again, now or when somebody sees the panel.
    void renew();

protected:
    MvPageEdits *edits() const { return m_edits; }
    bool isShowing() const { return m_isShowing; }
    /// Puts the current page's settings into the widgets.
    virtual void showPage() = 0;

    /// A column that scrolls when the panel is small, below what was added to the panel before.
    QVBoxLayout *addScrollingColumn();
    QVBoxLayout *panelLayout() const { return m_layout; }

    void showEvent(QShowEvent *event) override;

private:
    void refresh();

    MvPageEdits *m_edits;
    QVBoxLayout *m_layout;
    bool m_isOutdated = true;
    bool m_isShowing = false;
};
