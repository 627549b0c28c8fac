// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDesignerCustomWidgetInterface>

#include <functional>

/// One widget of MvCalendar for Qt Designer, as told by a row of a table. In Designer a new widget shows sample
/// content, elsewhere (QUiLoader) it is as its constructor leaves it.
class MvDesignerWidget : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    struct Row
    {
        QString className;
        QString module; // the folder of its header
        QString iconName;
        QString toolTip;
        QSize size; // of a new one
        std::function<QWidget *(QWidget *parent)> create;
        std::function<void(QWidget *widget)> showSample; // may be empty
    };

    explicit MvDesignerWidget(const Row &row, QObject *parent = nullptr);

    QString name() const override { return m_row.className; }
    QString group() const override;
    QString toolTip() const override { return m_row.toolTip; }
    QString whatsThis() const override { return m_row.toolTip; }
    QString includeFile() const override;
    QString domXml() const override;
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    QWidget *createWidget(QWidget *parent) override;
    bool isInitialized() const override { return m_isInitialized; }
    void initialize(QDesignerFormEditorInterface *core) override;

private:
    const Row m_row;
    bool m_isInitialized = false;
    bool m_isInDesigner = false;
};
