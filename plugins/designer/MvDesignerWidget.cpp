// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvDesignerWidget.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvGUIWidgets/MvIconRegistry.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// Who tries a form in Designer must not change their own entries.
void useEmptyDataFolder()
{
    static const QTemporaryDir folder;
    if (folder.isValid())
        MvDirectoryConfig::instance().setProgramDataDir(folder.path());
}

} // namespace

MvDesignerWidget::MvDesignerWidget(const Row &row, QObject *parent)
    : QObject(parent)
    , m_row(row)
{}

QString MvDesignerWidget::group() const
{
    return u"MvCalendar"_s;
}

QString MvDesignerWidget::includeFile() const
{
    return u"%1/%2.h"_s.arg(m_row.module, m_row.className);
}

QString MvDesignerWidget::domXml() const
{
    const QString objectName = m_row.className.at(2).toLower() + m_row.className.mid(3); // without "Mv"
    return uR"(<ui language="c++">
    <widget class="%1" name="%2">
        <property name="geometry">
            <rect><x>0</x><y>0</y><width>%3</width><height>%4</height></rect>
        </property>
    </widget>
</ui>
)"_s.arg(m_row.className, objectName)
        .arg(m_row.size.width())
        .arg(m_row.size.height());
}

QIcon MvDesignerWidget::icon() const
{
    return MvIconRegistry::instance().icon(m_row.iconName);
}

QWidget *MvDesignerWidget::createWidget(QWidget *parent)
{
    QWidget *widget = m_row.create(parent);
    if (m_isInDesigner && m_row.showSample)
        m_row.showSample(widget);
    return widget;
}

void MvDesignerWidget::initialize(QDesignerFormEditorInterface *core)
{
    m_isInitialized = true;
    m_isInDesigner = core != nullptr;
    if (m_isInDesigner)
        useEmptyDataFolder();
}
