// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

/// How entries read, with their ages: one of the usual forms, or a pattern of one's own with the places %name, %age and
/// %year, whether round numbers are marked; and below it an entry as it reads then.
class MvEntryPatternEdit : public QWidget
{
    Q_OBJECT

public:
    /// The texts name the form for an empty pattern, and the box for a screen reader; the object name's beginning is
    /// that of its parts.
    MvEntryPatternEdit(const QString &emptyForm, const QString &name, const QString &objectName,
                       QWidget *parent = nullptr);

    QString pattern() const;
    /// Emits nothing.
    void setPattern(const QString &pattern);
    void setExample(const QString &text);

Q_SIGNALS:
    /// By the user.
    void patternChanged(const QString &pattern);

private:
    void onFormActivated();
    void onOwnEdited();
    void tell();

    QComboBox *m_forms;
    QLineEdit *m_own;
    QCheckBox *m_round;
    QLabel *m_example;
    QString m_shown;
};
