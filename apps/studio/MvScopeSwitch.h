#pragma once

#include <QWidget>

class MvPageEdits;
class QToolButton;

/// Two buttons that decide what an edit applies to: all pages, or the current one alone.
class MvScopeSwitch : public QWidget
{
    Q_OBJECT

public:
    explicit MvScopeSwitch(MvPageEdits *edits, QWidget *parent = nullptr);

private:
    QToolButton *createButton(const QString &objectName, const QString &text, const QString &help);
    void showScope();

    MvPageEdits *m_edits;
    QToolButton *m_allPages;
    QToolButton *m_currentPage;
};
