// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvTemplateFilling.h"

#include <algorithm>

namespace {

/// What was changed stays, everything else is as in the new slot.
template <typename Value>
Value changedOr(const Value &present, const Value &before, const Value &after)
{
    return present == before ? after : present;
}

MvFotoElement merge(const MvFotoElement &present, const MvFotoElement &before, const MvFotoElement &after)
{
    MvFotoElement merged = present;
    merged.setFit(changedOr(present.fit(), before.fit(), after.fit()));
    merged.setBorder(changedOr(present.border(), before.border(), after.border()));
    return merged;
}

MvTextElement merge(const MvTextElement &present, const MvTextElement &before, const MvTextElement &after)
{
    MvTextElement merged = after;
    merged.setText(changedOr(present.text(), before.text(), after.text()));
    merged.setFamily(changedOr(present.family(), before.family(), after.family()));
    merged.setPoints(changedOr(present.points(), before.points(), after.points()));
    merged.setWeight(changedOr(present.weight(), before.weight(), after.weight()));
    merged.setItalic(changedOr(present.isItalic(), before.isItalic(), after.isItalic()));
    merged.setCapitals(changedOr(present.hasCapitals(), before.hasCapitals(), after.hasCapitals()));
    merged.setLetterSpacing(changedOr(present.letterSpacing(), before.letterSpacing(), after.letterSpacing()));
    merged.setColor(changedOr(present.color(), before.color(), after.color()));
    merged.setAccent(changedOr(present.isAccent(), before.isAccent(), after.isAccent()));
    merged.setAlignment(changedOr(present.alignment(), before.alignment(), after.alignment()));
    return merged;
}

MvCalendariumElement merge(const MvCalendariumElement &present, const MvCalendariumElement &before,
                           const MvCalendariumElement &after)
{
    MvCalendariumElement merged = after;
    merged.setLayout(changedOr(present.layout(), before.layout(), after.layout()));
    merged.setMonthOffset(changedOr(present.monthOffset(), before.monthOffset(), after.monthOffset()));
    merged.setMonthLine(changedOr(present.hasMonthLine(), before.hasMonthLine(), after.hasMonthLine()));
    return merged;
}

/// "caption" of "caption 2".
QString stem(const QString &slot)
{
    const auto end = std::find_if_not(slot.crbegin(), slot.crend(),
                                      [](QChar c) { return c.isDigit() || c.isSpace() || c == u'-' || c == u'_'; });
    return slot.left(slot.crend() - end);
}

/// Elements that are looking for a slot.
class Seekers
{
public:
    explicit Seekers(const QList<MvPageElement> &elements)
        : m_elements(elements)
        , m_isTaken(elements.size(), false)
    {}

    qsizetype count() const { return m_elements.size(); }
    const MvPageElement &at(qsizetype index) const { return m_elements[index]; }
    bool isTaken(qsizetype index) const { return m_isTaken[index]; }
    void take(qsizetype index) { m_isTaken[index] = true; }

private:
    QList<MvPageElement> m_elements;
    QList<bool> m_isTaken;
};

} // namespace

bool MvTemplateFilling::isOwn(const MvPageElement &element) const
{
    if (element.foto())
        return !element.foto()->isEmpty();
    if (!element.text())
        return false;
    const MvPageElement before = prototypeOf(element);
    return !element.text()->text().isEmpty() && (!before.text() || before.text()->text() != element.text()->text());
}

MvPageElement MvTemplateFilling::merged(const MvPageElement &element, const MvPageElement &prototype) const
{
    MvPageElement before = prototypeOf(element);
    if (before.kind() != element.kind()) { // nobody knows: the look is the new one, words and photos stay
        before = element;
        if (element.text() && !element.text()->text().isEmpty()) {
            MvTextElement other = *element.text();
            other.setText(QString());
            before.setContent(other);
        }
    }
    MvPageElement merged = prototype;
    std::visit(
        [&](const auto &present) {
            using Content = std::decay_t<decltype(present)>;
            merged.setContent(
                merge(present, std::get<Content>(before.content()), std::get<Content>(prototype.content())));
        },
        element.content());
    merged.setRotation(changedOr(element.rotation(), before.rotation(), prototype.rotation()));
    return merged;
}

MvPageElement MvTemplateFilling::prototypeOf(const MvPageElement &element) const
{
    for (const MvTemplateSlot &slot : m_before) {
        if (slot.element.slot() == element.slot() && slot.element.kind() == element.kind())
            return slot.element;
    }
    const bool isText = element.kind() == MvPageElement::Kind::Text;
    return isText ? MvPageElement({}, MvFotoElement()) : MvPageElement({}, MvTextElement());
}

QList<MvPageElement> MvTemplateFilling::fill(const QList<MvTemplateSlot> &after, const QList<MvPageElement> &elements,
                                             QList<MvPageElement> *spare) const
{
    QList<MvPageElement> byHand;
    QList<MvPageElement> seeking;
    for (const MvPageElement &element : elements)
        (element.slot().isEmpty() ? byHand : seeking).append(element);
    Seekers seekers(seeking + *spare);
    QList<qsizetype> found(after.size(), -1);
    const auto seek = [&](const auto &fits) { // a slot after the other, in both orders the first that fits
        for (qsizetype place = 0; place < after.size(); ++place) {
            for (qsizetype i = 0; found[place] < 0 && i < seekers.count(); ++i) {
                const MvPageElement &element = seekers.at(i);
                if (!seekers.isTaken(i) && element.kind() == after[place].element.kind() &&
                    fits(element, after[place].element)) {
                    found[place] = i;
                    seekers.take(i);
                }
            }
        }
    };
    seek([this](const MvPageElement &element, const MvPageElement &slot) {
        return element.slot() == slot.slot() && isOwn(element);
    });
    seek([this](const MvPageElement &element, const MvPageElement &slot) { // words keep their part on the page
        return isOwn(element) && (element.foto() || stem(element.slot()) == stem(slot.slot()));
    });
    seek([](const MvPageElement &element, const MvPageElement &slot) { return element.slot() == slot.slot(); });

    QList<MvPageElement> filled;
    for (qsizetype place = 0; place < after.size(); ++place) {
        const MvPageElement &prototype = after[place].element;
        filled.append(found[place] < 0 ? prototype : merged(seekers.at(found[place]), prototype));
    }
    spare->clear();
    for (qsizetype i = 0; i < seekers.count(); ++i) {
        if (!seekers.isTaken(i) && isOwn(seekers.at(i)))
            spare->append(seekers.at(i));
    }
    return filled + byHand;
}
