// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvExportResult.h"
#include "MvProject/MvExportTarget.h"
#include "MvProject/mvproject_export.h"

#include <QHash>
#include <QObject>

#include <functional>
#include <memory>

class MvExportFeed;
class MvExportObserver;
class MvFotoPages;
class MvPageSource;
class QThread;

/// Exports or prints a document while the program stays responsive: calendaria are recorded or read on the GUI thread,
/// a page at a time, and written in a thread of the job's own. Photos are never decoded on the GUI thread. Where the
/// computer has no thread to give, the GUI thread does it all, and the program waits while the pages are written.
///
/// The document is copied; personal entries are those of the moment in which a page is recorded. GUI thread. A job that
/// is deleted is cancelled first, which takes as long as the page that is just being written.
class MVPROJECT_EXPORT MvExportJob : public QObject
{
    Q_OBJECT

public:
    /// Dots per inch are those of PNG files.
    MvExportJob(const MvCalendarDocument &document, const MvExportTarget &target, int dpi = 300,
                QObject *parent = nullptr);
    /// Called in the job's thread; where pages are painted to. The observer is never null.
    using Writer = std::function<MvExportResult(const MvPageSource &pages, MvExportObserver *observer)>;
    /// Small photos of days are made for so many dots per inch.
    MvExportJob(const MvCalendarDocument &document, const Writer &write, int dpi, QObject *parent = nullptr);
    ~MvExportJob() override;

    /// Exports only these pages, counted from 0, instead of all; before start(). Numbers out of range are
    /// ignored.
    void setPages(const QList<int> &pages);
    /// Once per job; later calls do nothing.
    void start();
    /// Ends the export as soon as possible; finished() still comes. No incomplete file is left, and files that were
    /// complete stay and are named in the result.
    void cancel();
    bool isRunning() const { return m_isRunning; }

    const MvCalendarDocument &document() const { return m_document; }
    /// What was found when a page, counted from 0 in the document, was recorded; nothing before that.
    MvPageFindings findings(int page) const { return m_findings.value(page); }

Q_SIGNALS:
    /// So many pages of the total are done; first with none.
    void progress(int done, int total);
    void finished(const MvExportResult &result);

private:
    MvPageSource source();
    void startThread();
    void makePage(int number);
    /// False while photos of days are still missing.
    bool recordPage(int number);
    void writeHere();
    void finish();

    const MvCalendarDocument m_document;
    const Writer m_write;
    const int m_dpi;
    bool m_isForReading = false;
    QList<int> m_pages;
    QHash<int, MvPageFindings> m_findings;
    QStringList m_unreadOfDays; // paths of photos
    std::shared_ptr<MvExportFeed> m_feed;
    MvFotoPages *m_entryFotos;
    std::function<void()> m_work;      // writes what the feed is given
    std::unique_ptr<QThread> m_thread; // while running; none where the computer has none
    MvExportResult m_result;           // written by the thread, read after its end
    bool m_isStarted = false;
    bool m_isRunning = false;
};
