// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvProactiveHelpController.h"

#include <QStringList>

template class MvSingleton<MvProactiveHelpController>;

void MvProactiveHelpController::setAdviceText(int advice, const QString &text)
{
    m_texts.insert(advice, text);
}

void MvProactiveHelpController::resetPendingAdvicesAndClose()
{
    m_placeHolders.clear();
    Q_EMIT closeRequested();
}

void MvProactiveHelpController::updatePlaceHolderText(int advice, const QString &placeHolder, const QString &text)
{
    m_placeHolders[advice].insert(placeHolder, text);
}

void MvProactiveHelpController::showAdvice(int advice, double delay, int helpType,
                                           const MvProactiveHelpTransferContent &content)
{
    const QString text = adviceText(advice);
    if (!text.isEmpty())
        Q_EMIT adviceRequested(advice, text, delay, helpType, content);
}

QString MvProactiveHelpController::adviceText(int advice) const
{
    const QHash<QString, QString> placeHolders = m_placeHolders.value(advice);
    QStringList names = placeHolders.keys();
    names.sort();
    QString text = m_texts.value(advice, names.join(u'\n'));
    for (const QString &name : std::as_const(names))
        text.replace(name, placeHolders.value(name));
    return text;
}
