#include "MvStudioApplication.h"

#include "MvStudioWindow.h"

MvStudioApplication::MvStudioApplication(QObject *parent)
    : QObject(parent)
{}

MvStudioApplication::~MvStudioApplication() = default;

bool MvStudioApplication::start()
{
    m_window = std::make_unique<MvStudioWindow>();
    m_window->show();
    return true;
}
