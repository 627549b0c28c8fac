// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvDateEdit.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvCore/MvTypedDate.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QChar separator = u'.';
constexpr int digitsOfYear = 4;
constexpr int digitsOfDay = 2; // and of a month

MvTypedDate read(const QString &text, const QDate &present)
{
    return {text, MvApplicationLocale::instance().locale(), QDate::currentDate(), present.year()};
}

bool isEdit(const QEvent *event)
{
    static const QList<QEvent::Type> types{QEvent::KeyPress, QEvent::InputMethod, QEvent::ContextMenu};
    return types.contains(event->type());
}

} // namespace

MvDateEdit::MvDateEdit(QWidget *parent)
    : QDateTimeEdit(parent)
{
    setKeyboardTracking(false);
    setDateRange(QDate(MvTypedDate::earliestYear, 1, 1), MvTypedDate::latestDate(QDate::currentDate()));
    m_text = lineEdit()->text();
    lineEdit()->installEventFilter(this);
    connect(lineEdit(), &QLineEdit::textEdited, this, &MvDateEdit::onTextEdited);
    connect(this, &QDateTimeEdit::dateChanged, this, [this] {
        shieldBase();
        setError({});
    });
}

void MvDateEdit::showDate(const QDate &date)
{
    if (!date.isValid())
        return;
    const QDate latest = MvTypedDate::latestDate(QDate::currentDate());
    setDateRange(std::min(date, QDate(MvTypedDate::earliestYear, 1, 1)), std::max(date, latest));
    setDate(date); // which writes the text anew
    m_section.reset();
    shieldBase();
    if (hasFocus())
        selectSection(std::max(0, currentSectionIndex()));
    setError({});
}

// ---- the text

bool MvDateEdit::isEdited() const
{
    return lineEdit()->text() != textFromDateTime(dateTime());
}

QDate MvDateEdit::meaning() const
{
    return isEdited() ? read(lineEdit()->text(), date()).date() : date();
}

bool MvDateEdit::takeText()
{
    if (isEdited()) {
        const MvTypedDate typed = read(lineEdit()->text(), date());
        if (!typed.isValid()) {
            setError(typed.error());
            return false;
        }
        setDate(typed.date());
        m_section.reset();
        shieldBase();
        if (hasFocus())
            selectSection(std::max(0, currentSectionIndex()));
    }
    m_section.reset();
    shieldBase();
    setError({});
    return true;
}

void MvDateEdit::setError(const QString &error)
{
    m_error = error;
    Q_EMIT meaningChanged();
}

/// The text is a date with its separators, finished or not: "31.11.2026", ".1.".
bool MvDateEdit::hasSections() const
{
    const QString text = lineEdit()->text();
    const auto isOfDate = [](QChar c) { return c.isDigit() || c == separator; };
    return std::all_of(text.cbegin(), text.cend(), isOfDate) &&
           text.count(separator) == textFromDateTime(dateTime()).count(separator);
}

/// The base moves cursor and text as its sections want it whenever its line signals; it must not hear of a text that
/// is not its own.
void MvDateEdit::shieldBase()
{
    m_text = lineEdit()->text();
    lineEdit()->blockSignals(isEdited() || (m_section && m_section->isTyped));
}

/// Before an edit: is a section selected, or still the one that is typed over?
void MvDateEdit::noteSection()
{
    const QLineEdit *line = lineEdit();
    const QString text = line->text();
    if (line->hasSelectedText()) {
        const QString before = text.left(line->selectionStart());
        const QString after = text.mid(line->selectionEnd());
        const bool isSection = hasSections() && !line->selectedText().contains(separator) &&
                               (before.isEmpty() || before.endsWith(separator)) &&
                               (after.isEmpty() || after.startsWith(separator));
        m_section = isSection ? std::optional(Section{before, after}) : std::nullopt;
    } else if (m_section) {
        const bool isAtItsEnd = line->cursorPosition() == text.size() - m_section->after.size();
        if (!m_section->isTyped || !isAtItsEnd)
            m_section.reset();
    }
}

/// After an edit.
void MvDateEdit::onTextEdited()
{
    const QString text = lineEdit()->text();
    const bool isInSection = m_section && text.startsWith(m_section->before) && text.endsWith(m_section->after) &&
                             text.size() >= m_section->before.size() + m_section->after.size();
    lineEdit()->blockSignals(true);
    if (isInSection) {
        const QString typed = text.mid(m_section->before.size()).chopped(m_section->after.size());
        const bool isNumber = std::all_of(typed.cbegin(), typed.cend(), [](QChar c) { return c.isDigit(); });
        const bool isYear = m_section->before.count(separator) == 2;
        m_section->isTyped = true;
        if (!isNumber || typed.size() > (isYear ? digitsOfYear : digitsOfDay)) {
            lineEdit()->setText(typed);
            m_section.reset();
        }
    } else {
        m_section.reset();
    }
    shieldBase();
    setError({});
}

// The base class must neither validate nor complete a text.

QValidator::State MvDateEdit::validate(QString &, int &) const
{
    return QValidator::Acceptable;
}

QDateTime MvDateEdit::dateTimeFromText(const QString &text) const
{
    const MvTypedDate typed = read(text, date());
    return typed.isValid() ? QDateTime(typed.date(), time()) : dateTime();
}

// ---- keys, mouse and focus

bool MvDateEdit::event(QEvent *event)
{
    if (!isEdit(event))
        return QDateTimeEdit::event(event);
    if (lineEdit()->text() != m_text)
        onTextEdited();
    noteSection();
    shieldBase();
    if (event->type() == QEvent::InputMethod)
        lineEdit()->blockSignals(true); // the line tells the new cursor before the new text
    const bool isUsed = QDateTimeEdit::event(event);
    if (lineEdit()->text() != m_text)
        onTextEdited();
    else
        shieldBase();
    return isUsed;
}

void MvDateEdit::keyPressEvent(QKeyEvent *event)
{
    const bool isControl = event->modifiers() & Qt::ControlModifier;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!takeText())
            return;
        Q_EMIT editingFinished();
        event->ignore(); // the dialog's default button gets it
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QDateTimeEdit::keyPressEvent(event);
        return;
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (isControl && takeText()) {
            QDateTimeEdit::keyPressEvent(event);
            return;
        }
        [[fallthrough]];
    default:
        lineEdit()->event(event);
        return;
    case Qt::Key_Tab: // has been used by focusNextPrevChild()
    case Qt::Key_Backtab:
        return;
    }
}

void MvDateEdit::stepBy(int steps)
{
    if (!takeText())
        return;
    selectSectionAtCursor();
    QDateTimeEdit::stepBy(steps);
}

void MvDateEdit::mousePressEvent(QMouseEvent *event)
{
    takeText(); // the month sheet opens with it
    QDateTimeEdit::mousePressEvent(event);
}

bool MvDateEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == lineEdit() && event->type() == QEvent::MouseButtonRelease) {
        const bool isUsed = lineEdit()->event(event);
        selectSectionAtCursor();
        return isUsed;
    }
    return QDateTimeEdit::eventFilter(watched, event);
}

/// A click selects, so that what is typed next replaces a section instead of growing into it.
void MvDateEdit::selectSectionAtCursor()
{
    if (lineEdit()->hasSelectedText() || !hasSections())
        return;
    const qsizetype index = lineEdit()->text().left(lineEdit()->cursorPosition()).count(separator);
    selectSection(int(std::min<qsizetype>(index, sectionCount() - 1)));
}

/// A section has been left, so the date is taken; where it is none yet, such as 31 November on the way to December, the
/// text waits for the other sections.
void MvDateEdit::selectSection(int index)
{
    if (meaning().isValid())
        takeText();
    if (isEdited()) {
        const QStringList sections = lineEdit()->text().split(separator);
        const QStringList before = sections.mid(0, index);
        lineEdit()->setSelection(int(before.join(separator).size()) + (index > 0 ? 1 : 0),
                                 int(sections.value(index).size()));
    } else {
        setSelectedSection(sectionAt(index));
    }
    noteSection();
}

void MvDateEdit::focusInEvent(QFocusEvent *event)
{
    const QString text = lineEdit()->text();
    const bool wasEdited = isEdited();
    QDateTimeEdit::focusInEvent(event);
    if (wasEdited && keepText(text))
        lineEdit()->selectAll();
    shieldBase();
    if (!isEdited())
        selectSectionAtCursor();
    if (!isEdited() && !m_error.isEmpty())
        setError({});
}

void MvDateEdit::focusOutEvent(QFocusEvent *event)
{
    const bool comesBack = event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
    if (!comesBack)
        takeText();
    const QString text = lineEdit()->text();
    QDateTimeEdit::focusOutEvent(event);
    keepText(text);
}

/// The base shows its date when the focus comes and goes; a text that is none yet stays to be corrected.
bool MvDateEdit::keepText(const QString &text)
{
    const bool isLost = lineEdit()->text() != text;
    if (isLost) {
        lineEdit()->blockSignals(true);
        lineEdit()->setText(text);
    }
    shieldBase();
    return isLost;
}

bool MvDateEdit::focusNextPrevChild(bool next)
{
    noteSection();
    if (m_section) {
        const qsizetype index = m_section->before.count(separator) + (next ? 1 : -1);
        if (index >= 0 && index < sectionCount()) {
            selectSection(int(index));
            return false;
        }
    }
    takeText();
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): sections of the base have no say
    return QAbstractSpinBox::focusNextPrevChild(next);
}
