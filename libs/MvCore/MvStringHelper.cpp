#include "MvCore/MvStringHelper.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString MvStringHelper::boolToString(bool value)
{
    return value ? u"true"_s : u"false"_s;
}

bool MvStringHelper::stringToBool(const QString &text, bool defaultValue)
{
    static const QStringList yes = {u"true"_s, u"1"_s, u"yes"_s, u"on"_s};
    static const QStringList no = {u"false"_s, u"0"_s, u"no"_s, u"off"_s};
    const QString word = text.trimmed().toLower();
    if (yes.contains(word))
        return true;
    return no.contains(word) ? false : defaultValue;
}
