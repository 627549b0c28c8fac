// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QDateTimeEdit>
#include <QString>

#include <optional>

/// A date in three sections (or two, without a year), into which a person may type in any way that MvTypedDate knows.
///
/// Typing over a section that is selected changes that section, as long as it is a number that fits in; with anything
/// more, such as a separator, what was typed counts as a date of its own. Everything else edits the text freely. The
/// text is taken over with Enter, with a step and when the focus leaves the field. A text that is no date stays, and
/// so does the date; error() tells why. Arrow keys, wheel, Tab between sections and the month sheet are the base's.
class MVGUIWIDGETS_EXPORT MvDateEdit : public QDateTimeEdit
{
    Q_OBJECT

public:
    explicit MvDateEdit(QWidget *parent = nullptr);

    /// Shows the date instead of what was typed. It may lie outside of the dates that can be typed.
    void showDate(const QDate &date);

    /// Makes the typed text the date; false when it is none. A text without a year keeps the date's.
    bool takeText();
    /// Whether a text stands there that has not been taken over.
    bool isEdited() const;
    /// What is wrong with the text, for a person; empty as long as it has not been tried.
    QString error() const { return m_error; }
    /// The date that the text means at this moment; invalid for none.
    QDate meaning() const;

    void stepBy(int steps) override;
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// error() or meaning() may be another one now.
    void meaningChanged();

protected:
    QValidator::State validate(QString &input, int &pos) const override;
    QDateTime dateTimeFromText(const QString &text) const override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    /// A section that is being typed over, by what stands on both sides of it.
    struct Section
    {
        QString before;
        QString after;
        bool isTyped = false;
    };

    void noteSection();
    void onTextEdited();
    bool hasSections() const;
    void selectSectionAtCursor();
    void selectSection(int index);
    void shieldBase();
    bool keepText(const QString &text);
    void setError(const QString &error);

    std::optional<Section> m_section;
    QString m_text; // the line's, when it was last looked at
    QString m_error;
};
