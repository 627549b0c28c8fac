// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvStudioOptions.h"

#include <QObject>

#include <memory>

class MvProject;
class MvProjectAutosave;
class MvStudioWindow;

/// The program around the window: style, language, settings, and what stands on the command line or was left behind by
/// a crash. Needs a QApplication.
class MvStudioApplication : public QObject
{
    Q_OBJECT

public:
    explicit MvStudioApplication(const MvStudioOptions &options, QObject *parent = nullptr);
    ~MvStudioApplication() override;

    /// Names, version and defaults that hold before there is a window.
    static void setUpProcess(const QString &version);

    /// The language that the options, the settings or the system ask for.
    static void setUpLanguage(const MvStudioOptions &options);

    /// Opens the window with the coming year, or with the file of the command line. Offers what a crash left behind.
    void start();

    MvStudioWindow *window() const { return m_window.get(); }
    MvProject *project() const { return m_project.get(); }
    MvProjectAutosave *autosave() const { return m_autosave.get(); }

private:
    void applyTheme();
    void tellUnwritableFolder();
    void offerRecovery();

    MvStudioOptions m_options;
    std::unique_ptr<MvProject> m_project;
    std::unique_ptr<MvProjectAutosave> m_autosave;
    std::unique_ptr<MvStudioWindow> m_window;
};
