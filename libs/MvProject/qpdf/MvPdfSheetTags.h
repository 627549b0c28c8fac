// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QTransform>

#include <vector>

#include <qpdf/QPDFObjectHandle.hh>

class QPDF;

/// The structure of pages that lie on sheets: a finished PDF's is made over so that it is read from the sheets, sheet
/// by sheet, each page where it lies first.
class MvPdfSheetTags
{
public:
    /// The PDF outlives it; a file without a structure stays without one.
    explicit MvPdfSheetTags(QPDF &pdf);

    /// The page, counted from 0, is read where the form shows it on the sheet; the transformation is that of points of
    /// the page. Once for a page: what else shows it must carry no numbers of marked content (withoutNumbers()).
    void move(int page, QPDFObjectHandle form, const QPDFObjectHandle &sheet, const QTransform &toSheet);

    /// The order in which pages were moved becomes the one in which they are read.
    void finish();

    /// A form that looks the same and is decoration.
    static QPDFObjectHandle withoutNumbers(QPDF &pdf, QPDFObjectHandle form);

private:
    void place(QPDFObjectHandle element, const QPDFObjectHandle &form, const QPDFObjectHandle &sheet,
               const QTransform &toSheet);

    QPDFObjectHandle m_document;
    std::vector<QPDFObjectHandle> m_sections; // by page
    std::vector<QPDFObjectHandle> m_order;
};
