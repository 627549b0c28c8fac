// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QThreadPool>

#include <atomic>
#include <functional>
#include <memory>

class MvProject;
class QDialog;
class QWidget;

/// Photos of an opened project that are not where it says: tells them once, and finds them again in a folder that the
/// person shows, all at once (MvFotoRelocation). What was found for one project never comes into another that has been
/// opened meanwhile.
class MvMissingFotos : public QObject
{
    Q_OBJECT

public:
    /// The project is not owned. The window is the parent of all dialogs.
    MvMissingFotos(MvProject *project, QWidget *window);
    /// Waits until a search has noticed that nobody wants it any more.
    ~MvMissingFotos() override;

public Q_SLOTS:
    /// Tells of what is missing, when all files have been looked at; nothing happens when nothing is.
    void look();
    /// The same, and says so when nothing is.
    void search();

Q_SIGNALS:
    void message(const QString &text);

private:
    void forget();
    void lookThen(const std::function<void(const QStringList &missing)> &use);
    void tell(const QStringList &missing);
    void chooseFolder();
    void searchIn(const QString &folder);
    void take(const QHash<QString, QString> &found, int missing);

    MvProject *m_project;
    QWidget *m_window;
    std::shared_ptr<std::atomic_bool> m_isGivenUp;
    QThreadPool m_pool;
    QPointer<QDialog> m_question; // about the open project
    int m_looks = 0;
};
