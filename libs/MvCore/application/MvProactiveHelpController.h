// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvProactiveHelpTransferContent.h"
#include "MvCore/MvSingleton.h"
#include "MvCore/mvcore_export.h"

#include <QHash>
#include <QObject>
#include <QString>

class MvProactiveHelpController;
extern template class MVCORE_EXPORT MvSingleton<MvProactiveHelpController>;

/// Short notices to the user, each known by its number. The controller finishes their texts; whoever has a window (or
/// a terminal) shows what the signals bring.
class MVCORE_EXPORT MvProactiveHelpController : public QObject, public MvSingleton<MvProactiveHelpController>
{
    Q_OBJECT

public:
    /// Sets the text of a notice, with placeholders in it. Unless set, it is the placeholders alone, one a line.
    void setAdviceText(int advice, const QString &text);

    /// Forgets all placeholder texts and asks for the shown notice to be closed.
    void resetPendingAdvicesAndClose();
    /// Sets what stands in place of a placeholder ("#NAME#") of one notice.
    void updatePlaceHolderText(int advice, const QString &placeHolder, const QString &text);
    /// Shows a notice after `delay` seconds. A notice without any text is not shown.
    void showAdvice(int advice, double delay, int helpType, const MvProactiveHelpTransferContent &content);

    /// The text of a notice with its placeholders filled.
    QString adviceText(int advice) const;

Q_SIGNALS:
    /// A notice is to be shown; emitted at once, the delay is left to who shows it.
    void adviceRequested(int advice, const QString &text, double delay, int helpType,
                         const MvProactiveHelpTransferContent &content);
    void closeRequested();

private:
    QHash<int, QString> m_texts;
    QHash<int, QHash<QString, QString>> m_placeHolders; // by notice, then by placeholder
};
