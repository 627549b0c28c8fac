// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvFotoPool.h"
#include "MvProject/mvproject_export.h"

#include <QCoreApplication>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QThreadPool>

#include <atomic>
#include <functional>
#include <memory>

/// Gathers photos for the pool of a calendar: looks through files and folders, and into each photo, in threads of its
/// own, so that a window stays responsive with hundreds of them.
///
/// Of a folder all photos are taken, those of its folders, too, but nothing hidden, and no link that leads out of it.
/// Each file is taken once, whatever names lead to it. Every photo is decoded in a small size: that shows whether it is
/// whole, and where it should be cropped (MvFotoFocus). What comes out is sorted by capture time, then by name.
class MVPROJECT_EXPORT MvFotoPoolIntake : public QObject
{
    Q_OBJECT

public:
    enum class Reason {
        NoFoto,  ///< a file of another kind, as folders hold them
        Broken,  ///< a photo that cannot be read: damaged, too large, hostile
        Outside, ///< a link that leads out of the folder
        Closed,  ///< may not be read, is no regular file, or has vanished
    };

    struct Skipped
    {
        QString path;
        Reason reason = Reason::NoFoto;
        QString why; // one sentence

        /// For a person, on one line: "bild.jpg: Die Datei ist beschädigt …".
        QString toString() const;
        bool operator==(const Skipped &) const = default;
    };

    struct Result
    {
        QList<MvFotoPoolItem> items; // in order, none that was known before
        QList<Skipped> skipped;      // in the order of paths
        int known = 0;               // files that were in the pool already, or were given twice
        bool isCancelled = false;    // what was gathered until then is in it
        bool isCutShort = false;     // there were more than `mostFiles`

        /// What a person is told: nothing when everything was taken. Files of other kinds are counted, the rest named,
        /// at most `mostLines` of them.
        QStringList toStrings(int mostLines = 20) const;
    };

    static constexpr int mostFiles = 20'000; // of one intake: somebody has dropped a whole disk

    /// Called as photos are done, from any thread but never from two at once; false ends the work. The number of all is
    /// 0 while the folders are looked through.
    using GoOn = std::function<bool(int done, int all)>;

    /// The work itself; returns when it is done. Any thread. Of the pool only the paths count.
    static Result gather(const QStringList &paths, const QStringList &known = {}, const GoOn &goOn = {});

    explicit MvFotoPoolIntake(QObject *parent = nullptr);
    /// Cancels, and waits for what is being worked on.
    ~MvFotoPoolIntake() override;

    /// Begins; finished() follows in any case, later. What is begun meanwhile waits its turn.
    void start(const QStringList &paths, const MvFotoPool &pool);
    bool isRunning() const { return m_running > 0; }
    /// Gives up everything that was begun. finished() follows.
    void cancel();

Q_SIGNALS:
    /// See GoOn.
    void progressed(int done, int all);
    /// The items are the caller's to put into a pool.
    void finished(const MvFotoPoolIntake::Result &result);

private:
    QThreadPool m_pool; // one thread: one intake at a time
    std::shared_ptr<std::atomic_bool> m_isGivenUp;
    int m_running = 0;
};
