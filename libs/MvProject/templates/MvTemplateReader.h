// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvTemplateDesign.h"
#include "MvProject/MvTemplateRule.h"

#include <QCoreApplication>
#include <QDomElement>
#include <QFileInfo>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// Reads the templates of a file. One with a mistake is left out, and the mistake is told with file, line and id: a
/// template that is divided in another way than its file says would only puzzle its author.
class MvTemplateReader
{
    Q_DECLARE_TR_FUNCTIONS(MvTemplateReader)

public:
    explicit MvTemplateReader(const QFileInfo &file)
        : m_file(file)
    {}

    /// The templates without a mistake. A file that is not there has none.
    QList<MvTemplateDesign> read();

private:
    std::optional<MvTemplateDesign> readDesign(const QDomElement &element);
    void readDivision(const QDomElement &element, MvTemplateDesign &design);
    MvTemplateRule readRule(const QDomElement &element);
    MvTemplateRule::Text readText(const QDomElement &element);
    MvTemplateRule::Calendarium readCalendarium(const QDomElement &element);
    void readSpan(const QDomElement &element, const QString &key, int last, int &from, int &to);
    Qt::Edges readEdges(const QDomElement &element, const QString &key);
    double readNumber(const QDomElement &element, const QString &key, double least, double most, double usual);
    bool readYes(const QDomElement &element, const QString &key, bool usual);
    void checkDivisions(const QDomElement &element, const MvTemplateDesign &design);
    void checkKeys(const QDomElement &element, const QStringList &known);
    void tell(const QDomElement &element, const QString &mistake);

    QFileInfo m_file;
    QString m_id;
    bool m_isWhole = true; // of the template that is read
};
