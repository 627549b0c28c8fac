#pragma once

#include <QMainWindow>

/// The window of the program: the page in the middle, the strip of pages and the panels around it.
class MvStudioWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MvStudioWindow(QWidget *parent = nullptr);
    ~MvStudioWindow() override;
};
