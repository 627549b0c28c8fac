// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfSheetTags.h"

#include <QRectF>

#include <string>

#include <qpdf/Pl_Buffer.hh>
#include <qpdf/QPDF.hh>
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

/// Makes decoration of marked content that has a number.
class Unnumbered : public Object::TokenFilter
{
public:
    void handleToken(const QPDFTokenizer::Token &token) override
    {
        using Type = QPDFTokenizer::token_type_e;
        const bool isWord = token.getType() == Type::tt_word;
        m_operands += token.getRawValue();
        m_hasNumber = m_hasNumber || (token.getType() == Type::tt_name && token.getValue() == "/MCID");
        if (!isWord)
            return;
        if (m_hasNumber && token.getValue() == "BDC")
            write("/Artifact BMC");
        else
            write(m_operands);
        m_operands.clear();
        m_hasNumber = false;
    }
    void handleEOF() override { write(m_operands); }

private:
    std::string m_operands; // of the operator to come
    bool m_hasNumber = false;
};

} // namespace

MvPdfSheetTags::MvPdfSheetTags(QPDF &pdf)
    : m_document(Object::newNull())
{
    Object root = pdf.getRoot().getKey("/StructTreeRoot");
    if (root.isDictionary()) {
        m_document = root.getKey("/K");
        m_sections = inside(m_document);
    }
}

void MvPdfSheetTags::move(int page, Object form, const Object &sheet, const QTransform &toSheet)
{
    if (size_t(page) >= m_sections.size())
        return;
    form.getDict().replaceKey("/StructParents", Object::newInteger(page));
    place(m_sections[size_t(page)], form, sheet, toSheet);
    m_order.push_back(m_sections[size_t(page)]);
}

void MvPdfSheetTags::place(Object element, const Object &form, const Object &sheet, const QTransform &toSheet)
{
    std::vector<Object> parts = inside(element);
    for (Object &part : parts) {
        if (part.isInteger())
            part = Object::newDictionary({{"/Type", Object::newName("/MCR")}, {"/Stm", form}, {"/MCID", part}});
        else if (part.isDictionary())
            place(part, form, sheet, toSheet);
    }
    if (element.hasKey("/K"))
        element.replaceKey("/K", parts.size() == 1 ? parts.front() : Object::newArray(parts));
    if (element.hasKey("/Pg"))
        element.replaceKey("/Pg", sheet);
    moveBox(element, toSheet);
}

void MvPdfSheetTags::finish()
{
    if (!m_order.empty())
        m_document.replaceKey("/K", Object::newArray(m_order));
}

Object MvPdfSheetTags::withoutNumbers(QPDF &pdf, Object form)
{
    Unnumbered filter;
    Pl_Buffer content("content");
    form.filterAsContents(&filter, &content);
    content.finish();
    Object copy = Object::newStream(&pdf, content.getBufferSharedPointer());
    copy.replaceDict(form.getDict().shallowCopy());
    copy.getDict().removeKey("/StructParents");
    return copy;
}
