#pragma once

#include <QObject>

#include <memory>

class MvStudioWindow;

/// The program around the window: style, language, settings and what stands on the command line.
class MvStudioApplication : public QObject
{
    Q_OBJECT

public:
    explicit MvStudioApplication(QObject *parent = nullptr);
    ~MvStudioApplication() override;

    /// Opens the window. False when there is nothing more to do.
    bool start();

private:
    std::unique_ptr<MvStudioWindow> m_window;
};
