// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfSheetTags.h"

#include <QRectF>

#include <string>

#include <qpdf/Pl_Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFNumberTreeObjectHelper.hh>
#include <qpdf/QPDFTokenizer.hh>

namespace {

using Object = QPDFObjectHandle;

std::vector<Object> inside(Object element)
{
    Object inner = element.getKey("/K");
    return inner.isArray() ? inner.getArrayAsVector() : std::vector<Object>{inner};
}

/// Where a picture is, on the sheet.
void moveBox(Object element, const QTransform &toSheet)
{
    Object attributes = element.getKey("/A");
    if (!attributes.isDictionary() || !attributes.getKey("/BBox").isRectangle())
        return;
    const Object::Rectangle box = attributes.getKey("/BBox").getArrayAsRectangle();
    const QRectF moved = toSheet.mapRect(QRectF(QPointF(box.llx, box.lly), QPointF(box.urx, box.ury)));
    attributes = attributes.shallowCopy(); // others may share them
    attributes.replaceKey(
        "/BBox", Object::newFromRectangle(Object::Rectangle(moved.left(), moved.top(), moved.right(), moved.bottom())));
    element.replaceKey("/A", attributes);
}

/// Raises the numbers of marked content.
class Raised : public Object::TokenFilter
{
public:
    explicit Raised(int by)
        : m_by(by)
    {}

    void handleToken(const QPDFTokenizer::Token &token) override
    {
        using Type = QPDFTokenizer::token_type_e;
        if (m_isNumber && token.getType() == Type::tt_integer)
            write(std::to_string(std::stoi(token.getValue()) + m_by));
        else
            writeToken(token);
        if (token.getType() != Type::tt_space)
            m_isNumber = token.getType() == Type::tt_name && token.getValue() == "/MCID";
    }

private:
    const int m_by;
    bool m_isNumber = false;
};

} // namespace

MvPdfSheetTags::MvPdfSheetTags(QPDF &pdf)
    : m_pdf(pdf)
    , m_root(pdf.getRoot().getKey("/StructTreeRoot"))
{
    if (!m_root.isDictionary())
        return;
    m_sections = inside(m_root.getKey("/K"));
    for (const auto &[page, owners] : QPDFNumberTreeObjectHelper(m_root.getKey("/ParentTree"), pdf).getAsMap())
        m_pageOwners.push_back(owners);
}

int MvPdfSheetTags::move(int page, Object sheet, const QTransform &toSheet)
{
    if (size_t(page) >= m_sections.size())
        return 0;
    if (!sheet.hasKey("/StructParents")) {
        sheet.replaceKey("/StructParents", Object::newInteger(int(m_owners.size())));
        m_owners.push_back(Object::newArray());
    }
    Object &owners = m_owners.back();
    const int raise = owners.getArrayNItems();
    for (const Object &owner : m_pageOwners[size_t(page)].getArrayAsVector())
        owners.appendItem(owner);
    place(m_sections[size_t(page)], sheet, raise, toSheet);
    m_order.push_back(m_sections[size_t(page)]);
    return raise;
}

void MvPdfSheetTags::place(Object element, const Object &sheet, int raise, const QTransform &toSheet)
{
    std::vector<Object> parts = inside(element);
    for (Object &part : parts) {
        if (part.isInteger())
            part = Object::newInteger(part.getIntValue() + raise);
        else if (part.isDictionary())
            place(part, sheet, raise, toSheet);
    }
    if (element.hasKey("/K"))
        element.replaceKey("/K", parts.size() == 1 ? parts.front() : Object::newArray(parts));
    if (element.hasKey("/Pg"))
        element.replaceKey("/Pg", sheet);
    moveBox(element, toSheet);
}

void MvPdfSheetTags::finish()
{
    if (m_order.empty())
        return;
    m_root.getKey("/K").replaceKey("/K", Object::newArray(m_order));
    Object numbers = Object::newArray();
    for (size_t sheet = 0; sheet < m_owners.size(); ++sheet) {
        numbers.appendItem(Object::newInteger(int(sheet)));
        numbers.appendItem(m_owners[sheet]);
    }
    m_root.replaceKey("/ParentTree", m_pdf.makeIndirectObject(Object::newDictionary({{"/Nums", numbers}})));
    m_root.replaceKey("/ParentTreeNextKey", Object::newInteger(int(m_owners.size())));
}

Object MvPdfSheetTags::raised(QPDF &pdf, Object content, int by)
{
    Raised filter(by);
    Pl_Buffer commands("content");
    content.filterAsContents(&filter, &commands);
    commands.finish();
    return Object::newStream(&pdf, commands.getBufferSharedPointer());
}
