// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvEntryPatternEdit.h"

#include "MvCalendar/MvEventText.h"
#include "MvGUIWidgets/MvFormFields.h"
#include "MvPaint/MvPrintableText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int formLetters = 16;

const QString ownForm = u"\n"_s; // no pattern

/// As people see it in the list.
QString sample(QString pattern)
{
    return pattern.replace(u"%name"_s, MvEntryPatternEdit::tr("Jörg"))
        .replace(u"%age"_s, u"60"_s)
        .replace(u"%year"_s, u"1967"_s);
}

} // namespace

MvEntryPatternEdit::MvEntryPatternEdit(const QString &emptyForm, const QString &name, const QString &objectName,
                                       QWidget *parent)
    : QWidget(parent)
    , m_forms(new QComboBox(this))
    , m_own(new QLineEdit(this))
    , m_round(new QCheckBox(tr("Runde Zahlen hervorheben: 60!"), this))
    , m_example(new QLabel(this))
{
    m_forms->setObjectName(objectName + u"Forms"_s);
    auto *unseen = new QLabel(name, this); // a box with a list takes its name from a label
    unseen->setBuddy(m_forms);
    unseen->hide();
    m_forms->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_forms->setMinimumContentsLength(formLetters);
    MvFormFields::keepWheelOut({m_forms});
    m_forms->addItem(emptyForm, QString());
    const QString places[] = {u"%name"_s, u"%age"_s, u"%year"_s};
    const QString forms[] = {places[0],
                             u"%1 (%2)"_s.arg(places[0], places[1]),
                             tr("%1 wird %2").arg(places[0], places[1]),
                             tr("%1, %2 Jahre").arg(places[0], places[1]),
                             u"%1 (*%2)"_s.arg(places[0], places[2]),
                             u"%1 (%2, *%3)"_s.arg(places[0], places[1], places[2]),
                             tr("%1 seit %2").arg(places[0], places[2])};
    for (const QString &form : forms) {
        if (form != places[0] || !emptyForm.isEmpty())
            m_forms->addItem(form == places[0] ? tr("Nur der Name") : sample(form), form);
    }
    m_forms->addItem(tr("Eigene Form …"), ownForm);
    m_own->setObjectName(objectName + u"Own"_s);
    m_own->setAccessibleName(tr("Eigene Form mit %name, %age und %year"));
    m_own->setToolTip(
        tr("%name ist der Name, %age das Alter oder die Zahl der Jahre, %year das Jahr des Eintrags. Ohne "
           "bekanntes Jahr steht der Name allein."));
    m_own->setPlaceholderText(u"%name (%age)"_s);
    m_round->setObjectName(objectName + u"Round"_s);
    m_round->setToolTip(tr("Volle Jahrzehnte, 25 und 75 bekommen ein Ausrufezeichen."));
    m_example->setObjectName(objectName + u"Example"_s);
    m_example->setTextFormat(Qt::PlainText);
    m_example->setWordWrap(true);
    m_example->setForegroundRole(QPalette::PlaceholderText);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_forms);
    column->addWidget(m_own);
    column->addWidget(m_round);
    column->addWidget(m_example);
    setPattern({});
    connect(m_forms, &QComboBox::activated, this, &MvEntryPatternEdit::onFormActivated);
    connect(m_own, &QLineEdit::editingFinished, this, &MvEntryPatternEdit::onOwnEdited);
    connect(m_round, &QCheckBox::clicked, this, &MvEntryPatternEdit::tell);
}

QString MvEntryPatternEdit::pattern() const
{
    const QString form = m_forms->currentData().toString();
    return MvEventText::withRoundMarked(form == ownForm ? m_own->text().trimmed() : form, m_round->isChecked());
}

void MvEntryPatternEdit::setPattern(const QString &pattern)
{
    m_shown = pattern;
    const QString plain = MvEventText::withRoundMarked(pattern, false);
    const int form = m_forms->findData(plain);
    const bool isBeingTyped = m_own->isVisible() && m_own->hasFocus() && m_own->text().trimmed() == plain;
    if (!isBeingTyped)
        m_forms->setCurrentIndex(form >= 0 ? form : m_forms->findData(ownForm));
    if (form < 0 && m_own->text() != plain)
        m_own->setText(plain);
    m_own->setVisible(m_forms->currentData() == ownForm);
    m_round->setChecked(MvEventText::marksRound(pattern));
    m_round->setVisible(plain.contains(u"%age"_s));
}

void MvEntryPatternEdit::setExample(const QString &text)
{
    m_example->setText(MvPrintableText::inShort(text));
}

void MvEntryPatternEdit::onFormActivated()
{
    const bool isOwn = m_forms->currentData() == ownForm;
    m_own->setVisible(isOwn);
    if (isOwn) { // begins with what there is
        m_own->setText(m_shown.isEmpty() ? u"%name"_s : MvEventText::withRoundMarked(m_shown, false));
        m_own->setFocus();
        m_own->selectAll();
    } else {
        tell();
    }
}

void MvEntryPatternEdit::onOwnEdited()
{
    if (m_forms->currentData() == ownForm)
        tell();
}

void MvEntryPatternEdit::tell()
{
    m_round->setVisible(pattern().contains(u"%age"_s));
    if (pattern() == m_shown)
        return;
    m_shown = pattern();
    Q_EMIT patternChanged(m_shown);
}
