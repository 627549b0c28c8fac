#include "MvStudioWindow.h"

MvStudioWindow::MvStudioWindow(QWidget *parent)
    : QMainWindow(parent)
{}

MvStudioWindow::~MvStudioWindow() = default;
