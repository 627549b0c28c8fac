// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDesignerCustomWidgetCollectionInterface>

/// The widgets of MvCalendar in the widget box of Qt Designer, and for QUiLoader.
class MvDesignerPlugin : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit MvDesignerPlugin(QObject *parent = nullptr);

    QList<QDesignerCustomWidgetInterface *> customWidgets() const override { return m_widgets; }

private:
    QList<QDesignerCustomWidgetInterface *> m_widgets; // children
};
