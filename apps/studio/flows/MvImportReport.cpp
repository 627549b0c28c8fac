// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvImportReport.h"

#include "common/MvStudioMessage.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int mostLines = 10; // of each list

} // namespace

MvImportReport::MvImportReport(const MvAddressBookImport::Report &report, int imported, const QString &problem)
    : m_report(report)
    , m_imported(imported)
    , m_problem(problem)
{}

bool MvImportReport::isError() const
{
    return !m_report.errors.isEmpty() || (m_imported > 0 && !m_problem.isEmpty());
}

QString MvImportReport::summary() const
{
    if (m_imported > 0)
        return m_problem.isEmpty()
                   ? tr("%n Geburtstage importiert.", nullptr, m_imported)
                   : tr("%n Geburtstage stehen im Kalender, sind aber noch nicht gespeichert.", nullptr, m_imported);
    if (m_report.known > 0)
        return tr("Alle %n Geburtstage waren schon da.", nullptr, m_report.known);
    if (!m_report.errors.isEmpty())
        return tr("Ein Adressbuch ließ sich nicht lesen.");
    return m_report.notUnderstood.isEmpty() ? tr("In den Visitenkarten steht kein Geburtstag.")
                                            : tr("In den Visitenkarten steht kein Geburtstag, der sich lesen lässt.");
}

QStringList MvImportReport::counts() const
{
    QStringList lines;
    if (m_imported > 0 && m_report.known > 0)
        lines.append(tr("%n waren schon da.", nullptr, m_report.known));
    if (m_report.withoutDate > 0)
        lines.append(tr("%n Visitenkarten haben keinen Geburtstag.", nullptr, m_report.withoutDate));
    if (m_report.withoutName > 0)
        lines.append(tr("%n Visitenkarten mit Geburtstag haben keinen Namen.", nullptr, m_report.withoutName));
    return lines;
}

QString MvImportReport::paragraph(const QString &title, const QStringList &lines)
{
    return lines.isEmpty() ? QString() : title + u'\n' + MvStudioMessage::shortened(lines, mostLines);
}

QString MvImportReport::details() const
{
    QStringList paragraphs;
    if (m_imported > 0)
        paragraphs.append(m_problem.isEmpty() ? tr("Sie stehen jetzt auf ihren Tagen. Zurücknehmen lässt sich das mit "
                                                   "Bearbeiten > Rückgängig.")
                                              : m_problem);
    else if (m_report.known == 0 && m_report.errors.isEmpty())
        paragraphs.append(tr("Tragen Sie die Geburtstage im Adressbuch ein, und exportieren Sie es noch einmal als "
                             "vCard (.vcf)."));
    paragraphs.append(counts().join(u'\n'));
    paragraphs.append(
        paragraph(tr("Nicht verstanden (%1):").arg(m_report.notUnderstood.size()), m_report.notUnderstood));
    paragraphs.append(
        paragraph(tr("Ohne Bild, denn es ließ sich nicht übernehmen (%1):").arg(m_report.unreadablePictures.size()),
                  m_report.unreadablePictures));
    paragraphs.append(m_report.errors.join(u'\n'));
    paragraphs.removeAll(QString());
    return paragraphs.join(u"\n\n"_s);
}
