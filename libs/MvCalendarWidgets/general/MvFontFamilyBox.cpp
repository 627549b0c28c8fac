// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvFontFamilyBox.h"

#include <QCompleter>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

constexpr int ForeignRole = Qt::UserRole + 1;
constexpr int usualNameLength = 24; // characters

} // namespace

MvFontFamilyBox::MvFontFamilyBox(const QStringList &families, QWidget *parent)
    : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    addItems(families);
    completer()->setCompletionMode(QCompleter::PopupCompletion);
    completer()->setFilterMode(Qt::MatchContains);
    completer()->setCaseSensitivity(Qt::CaseInsensitive);
    lineEdit()->setPlaceholderText(tr("Schrift des Layouts"));
    setCurrentIndex(-1);
    showState();
    connect(this, &QComboBox::currentIndexChanged, this, &MvFontFamilyBox::showState);
    connect(lineEdit(), &QLineEdit::editingFinished, this, &MvFontFamilyBox::finishTyping);
}

MvFontFamilyBox::~MvFontFamilyBox() = default;

void MvFontFamilyBox::setFontFamily(const QString &family)
{
    if (!family.isEmpty() && findText(family, Qt::MatchFixedString) < 0)
        addForeign(family);
    const int index = family.isEmpty() ? -1 : findText(family, Qt::MatchFixedString);
    if (index == currentIndex())
        setEditText(itemText(index)); // drops what was typed
    else
        setCurrentIndex(index);
}

bool MvFontFamilyBox::isForeign() const
{
    return currentData(ForeignRole).toBool();
}

QSize MvFontFamilyBox::sizeHint() const
{
    const QSize hint = QComboBox::sizeHint();
    return {qMax(hint.width(), usualNameLength * fontMetrics().averageCharWidth()), hint.height()};
}

void MvFontFamilyBox::addForeign(const QString &family)
{
    const QSignalBlocker blocker(this); // a box chooses its first item by itself
    const int previous = currentIndex();
    addItem(style()->standardIcon(QStyle::SP_MessageBoxWarning), family);
    setItemData(count() - 1, true, ForeignRole);
    setItemData(count() - 1, tr("Auf diesem Computer nicht installiert"), Qt::ToolTipRole);
    setItemData(count() - 1, tr("%1, nicht installiert").arg(family), Qt::AccessibleTextRole);
    setCurrentIndex(previous);
}

void MvFontFamilyBox::finishTyping()
{
    const QString typed = currentText().trimmed();
    if (typed == itemText(currentIndex()))
        return;
    const int index = typed.isEmpty() ? -1 : findText(typed, Qt::MatchFixedString);
    if (typed.isEmpty() || index >= 0)
        setCurrentIndex(index);
    setEditText(itemText(currentIndex()));
}

/// A box that is removed while it is being typed in emits no editingFinished().
void MvFontFamilyBox::hideEvent(QHideEvent *event)
{
    finishTyping();
    QComboBox::hideEvent(event);
}

void MvFontFamilyBox::showState()
{
    const QString hint = isForeign()
                             ? tr("Die Schrift „%1“ ist auf diesem Computer nicht installiert; gezeigt und gedruckt "
                                  "wird eine Ersatzschrift.")
                                   .arg(itemText(currentIndex()))
                             : tr("Ohne Eintrag gilt die Schrift des Layouts.");
    lineEdit()->setCursorPosition(0); // a long name shows its beginning
    setToolTip(hint);
    setAccessibleDescription(hint);
}
