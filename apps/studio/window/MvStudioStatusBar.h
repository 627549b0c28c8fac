// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "flows/MvPrintWatch.h"

#include <QStatusBar>

class QComboBox;
class QLabel;
class QToolButton;

/// Messages at the left; at the right trouble with the entries, what will not print well, the shown page and its zoom.
class MvStudioStatusBar : public QStatusBar
{
    Q_OBJECT

public:
    explicit MvStudioStatusBar(QWidget *parent = nullptr);

    /// Number of the page, counted from 0, and what it shows: "Seite 3 von 12 · März 2027".
    void setPage(int page, int pageCount, const QString &title);
    void setZoom(double zoom, bool isFitted);
    /// While no page is to be seen, neither are its number and its zoom.
    void setPageShown(bool shown);
    void setUnfitting(const QList<MvPrintFinding> &entries);
    /// What is wrong with the file of entries, in few words; empty when nothing is.
    void setEntriesNotice(const QString &text);

Q_SIGNALS:
    void zoomRequested(double zoom);
    void fitRequested();
    /// Somebody wants to see what it is about.
    void noteChosen(const MvPrintFinding &note);
    void entriesNoticeClicked();

private:
    void onZoomEntered();
    void fillMenu();

    QList<MvPrintFinding> m_entries;
    QToolButton *m_entriesNotice;
    QToolButton *m_unfitting;
    QLabel *m_page;
    QComboBox *m_zoom;
    QString m_zoomText; // as it stands when nobody types
};
