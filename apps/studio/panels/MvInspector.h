// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "pages/MvPageSelection.h"

#include <QHash>
#include <QList>
#include <QWidget>

class MvInspectorSection;
class MvScopeSwitch;
class MvStudioPanels;
class QLabel;
class QToolButton;
class QVBoxLayout;

/// The panels for what is chosen on the page, one below the other, one of them open: with nothing chosen those of the
/// calendar, else those of the frame, the text or the day. Its head names what that is and leads back to the calendar.
class MvInspector : public QWidget
{
    Q_OBJECT

public:
    /// Takes the panels' widgets. Neither the panels nor the selection are owned.
    MvInspector(MvStudioPanels *panels, MvPageSelection *selection, QWidget *parent = nullptr);
    ~MvInspector() override;

    /// Opens a panel by its object name. For one of the calendar, what is chosen is given up; false when there is no
    /// such panel, or nothing is chosen that it could show.
    bool open(const QString &panel);
    QString openPanel() const { return m_open.value(int(m_selection->kind())); }

    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    struct Row
    {
        MvInspectorSection *section = nullptr;
        QList<MvPageSelection::Kind> about;
        bool hasScope = false;
    };

    void followSelection();
    void show(const QString &panel);
    QString title() const;

    MvStudioPanels *m_panels;
    MvPageSelection *m_selection;
    QLabel *m_title;
    QToolButton *m_back;
    MvScopeSwitch *m_scope;
    QVBoxLayout *m_column;
    QList<Row> m_rows;
    QHash<int, QString> m_open; // by the kind of what is chosen
};
