// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

class MvPageEdits;
class QRadioButton;

/// Two choices that decide what an edit applies to: all pages, or the current one alone.
class MvScopeSwitch : public QWidget
{
    Q_OBJECT

public:
    explicit MvScopeSwitch(MvPageEdits *edits, QWidget *parent = nullptr);

private:
    QRadioButton *createButton(const QString &objectName, const QString &text, const QString &help);
    void showScope();

    MvPageEdits *m_edits;
    QRadioButton *m_allPages;
    QRadioButton *m_currentPage;
};
