// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

class QToolButton;
struct MvStudioPanel;

/// A panel below a heading that opens it.
class MvInspectorSection : public QWidget
{
    Q_OBJECT

public:
    /// Takes the panel's widget over. Its heading is called as the panel is, followed by "Header".
    MvInspectorSection(const MvStudioPanel &panel, QWidget *parent);

    /// The panel's object name.
    QString name() const;
    bool isOpen() const;
    void setOpen(bool open);
    /// The width without which the panel or its heading would be cut.
    int narrowest() const;

Q_SIGNALS:
    /// The heading was pressed.
    void pressed();

private:
    QWidget *m_panel;
    QToolButton *m_header;
};
