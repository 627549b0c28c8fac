// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvEntryImportReport.h"

#include "common/MvStudioMessage.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QString hint(const MvEntryFileImport::Result &result)
{
    if (result.report.added + result.report.changed > 0)
        return MvEntryImportReport::tr("Sie stehen jetzt auf ihren Tagen. Zurücknehmen lässt sich das mit "
                                       "Bearbeiten > Rückgängig.");
    return result.report.equal > 0 ? MvEntryImportReport::tr("Alles davon war schon da.") : QString();
}

} // namespace

MvEntryImportReport::MvEntryImportReport(const MvEntryFileImport::Result &result, QWidget *parent)
    : QDialog(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"entryImportReport"_s);
    setWindowTitle(tr("Termine importieren"));
    auto *layout = new QVBoxLayout(this);
    const auto addText = [this, layout](const QString &text, const char *name, bool isBold) {
        if (text.isEmpty())
            return;
        auto *label = new QLabel(text, this);
        label->setObjectName(QLatin1StringView(name));
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        QFont font = label->font();
        font.setBold(isBold);
        label->setFont(font);
        layout->addWidget(label);
    };
    addText(result.summary(), "importSummary", true);
    addText(hint(result), "importHint", false);
    const QStringList lines = result.errors + result.lines;
    if (!lines.isEmpty()) {
        addText(tr("Ausgelassen:"), "importLeftOut", false);
        auto *list = new QPlainTextEdit(lines.join(u'\n'), this);
        list->setObjectName(u"importLines"_s);
        list->setAccessibleName(tr("Was ausgelassen wurde"));
        list->setReadOnly(true);
        list->setTabChangesFocus(true);
        list->setLineWrapMode(QPlainTextEdit::NoWrap);
        layout->addWidget(list, 1);
    } else {
        layout->addStretch();
    }
    QDialogButtonBox *buttons = MvStudioMessage::createButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    layout->addWidget(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 60);
    if (!lines.isEmpty())
        resize(fontMetrics().averageCharWidth() * 90, fontMetrics().lineSpacing() * 20);
}
