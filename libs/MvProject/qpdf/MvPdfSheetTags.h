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

    /// The page, counted from 0, is read from the sheet whose content it becomes; the transformation is that of points
    /// of the page. Gives by how much the numbers of its marked content must be raised there. Once for a page, and all
    /// of a sheet one after the other; a sheet that is none of these has no numbers that mean anything.
    int move(int page, QPDFObjectHandle sheet, const QTransform &toSheet);

    /// The order in which pages were moved becomes the one in which they are read.
    void finish();

    /// The same content with higher numbers.
    static QPDFObjectHandle raised(QPDF &pdf, QPDFObjectHandle content, int by);

private:
    static void place(QPDFObjectHandle element, const QPDFObjectHandle &sheet, int raise, const QTransform &toSheet);

    QPDF &m_pdf;
    QPDFObjectHandle m_root;
    std::vector<QPDFObjectHandle> m_sections; // by page
    std::vector<QPDFObjectHandle> m_pageOwners;
    std::vector<QPDFObjectHandle> m_order;
    std::vector<QPDFObjectHandle> m_owners; // by sheet that is read
};
