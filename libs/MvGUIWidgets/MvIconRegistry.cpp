#include "MvGUIWidgets/MvIconRegistry.h"

#include <QFile>

using namespace Qt::StringLiterals;

template class MvSingleton<MvIconRegistry>;

MvIconRegistry::MvIconRegistry() = default;
MvIconRegistry::~MvIconRegistry() = default;

QIcon MvIconRegistry::icon(const QString &name) const
{
    const QString file = u":/mvcalendar/icons/%1.svg"_s.arg(name);
    return QFile::exists(file) ? QIcon(file) : QIcon();
}
