// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfStructure.h"

#include "MvProject/MvPdfFile.h"
#include "MvProject/MvPdfSyntax.h"

namespace {

QByteArray references(const QList<int> &objects)
{
    QByteArray all;
    for (const int object : objects)
        all += (all.isEmpty() ? "" : " ") + MvPdfSyntax::reference(object);
    return '[' + all + ']';
}

QByteArray entry(const QByteArray &key, const QString &text)
{
    return text.isEmpty() ? QByteArray() : key + MvPdfSyntax::text(text);
}

} // namespace

MvPdfStructure::MvPdfStructure(MvPdfFile &file)
    : m_file(file)
    , m_document(file.reserve())
{}

int MvPdfStructure::addPage(int pageObject, const MvPdfElement &section, int contentCount)
{
    QList<int> owners(contentCount);
    m_sections.append(write(section, m_document, pageObject, owners));
    m_owners.append(references(owners));
    return int(m_owners.size()) - 1;
}

int MvPdfStructure::write(const MvPdfElement &element, int around, int pageObject, QList<int> &owners)
{
    const int object = m_file.reserve();
    QByteArray inner;
    for (const int content : element.contents) {
        inner += QByteArray::number(content) + ' ';
        owners[content] = object;
    }
    for (const MvPdfElement &part : element.parts)
        inner += MvPdfSyntax::reference(write(part, object, pageObject, owners)) + ' ';
    inner.chop(1);
    const bool isOne = element.contents.size() + qsizetype(element.parts.size()) == 1;
    QByteArray value = "<</S/" + element.type + "/P " + MvPdfSyntax::reference(around);
    if (!inner.isEmpty())
        value += isOne ? "/K " + inner : "/K[" + inner + ']';
    if (!element.contents.isEmpty())
        value += "/Pg " + MvPdfSyntax::reference(pageObject);
    if (!element.attributes.isEmpty())
        value += "/A " + MvPdfSyntax::reference(m_file.addOnce(element.attributes));
    value += entry("/ActualText", element.whole) + entry("/E", element.longForm) + entry("/Alt", element.description) +
             entry("/T", element.name);
    m_file.set(object, value + ">>");
    return object;
}

QByteArray MvPdfStructure::finish()
{
    if (m_sections.isEmpty())
        return {};
    const int root = m_file.reserve();
    m_file.set(m_document, "<</S/Document/P " + MvPdfSyntax::reference(root) + "/K" + references(m_sections) + ">>");
    QByteArray numbers;
    for (qsizetype page = 0; page < m_owners.size(); ++page)
        numbers += QByteArray::number(page) + m_owners[page];
    const int owners = m_file.add("<</Nums[" + numbers + "]>>");
    m_file.set(root, "<</Type/StructTreeRoot/K " + MvPdfSyntax::reference(m_document) + "/ParentTree " +
                         MvPdfSyntax::reference(owners) + "/ParentTreeNextKey " + QByteArray::number(m_owners.size()) +
                         ">>");
    return "/StructTreeRoot " + MvPdfSyntax::reference(root) + "/MarkInfo<</Marked true>>";
}
