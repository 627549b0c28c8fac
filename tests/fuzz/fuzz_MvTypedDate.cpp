// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFuzz.h"

#include "MvCore/MvTypedDate.h"

using namespace Qt::StringLiterals;

/// A date as a person types it, the first byte chooses the language: what is understood lies in the allowed years and
/// reads the same when it is written out; what is not has an error.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    static const QList<QLocale> locales = {QLocale(u"de_DE"_s), QLocale(u"en_US"_s), QLocale(u"en_GB"_s),
                                           QLocale(u"fr_FR"_s), QLocale(u"ar_EG"_s), QLocale(u"ja_JP"_s)};
    const QLocale &locale = locales.at(data[0] % locales.size());
    const QDate today(2026, 11, 21);
    const MvTypedDate typed(QString::fromUtf8(MvFuzz::bytes(data + 1, size - 1)), locale, today, 2027);
    MvFuzz::check(typed.isValid() == typed.error().isEmpty(), "an error for what is no date, and for that alone");
    if (!typed.isValid())
        return 0;
    const QDate date = typed.date();
    MvFuzz::check(date.isValid() && date.year() >= MvTypedDate::earliestYear && date <= MvTypedDate::latestDate(today),
                  "a date within the allowed years");
    const MvTypedDate again(date.toString(u"d.M.yyyy"_s), locale, today, 2027);
    MvFuzz::check(again.date() == date, "a date that is written out is the same date");
    return 0;
}
