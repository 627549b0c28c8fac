// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfFile.h"

#include "MvCore/MvLoadedModule.h"

MvPdfFile::MvPdfFile()
{
    static MvLoadedModule module("MvPdf");
    if (auto *make = module.function<MvPdfObjects *()>("mvMakePdfObjects", &m_error))
        m_objects.reset(make());
}

MvPdfFile::~MvPdfFile() = default;

int MvPdfFile::reserve()
{
    return m_objects ? m_objects->reserve() : 0;
}

void MvPdfFile::set(int object, const QByteArray &value)
{
    if (m_objects)
        m_objects->set(object, value);
}

int MvPdfFile::add(const QByteArray &value)
{
    return m_objects ? m_objects->add(value) : 0;
}

int MvPdfFile::addOnce(const QByteArray &value)
{
    const auto known = m_once.constFind(value);
    return known != m_once.cend() ? *known : *m_once.insert(value, add(value));
}

int MvPdfFile::addStream(const QByteArray &entries, const QByteArray &content)
{
    constexpr int sizeBefore = 4; // bytes of the length that the packed content begins with
    return addPackedStream(entries + "/Filter/FlateDecode", qCompress(content, 9).sliced(sizeBefore));
}

int MvPdfFile::addPackedStream(const QByteArray &entries, const QByteArray &content)
{
    return m_objects ? m_objects->addPackedStream(entries, content) : 0;
}

void MvPdfFile::setCatalog(const QByteArray &value)
{
    if (m_objects)
        m_objects->setCatalog(value);
}

void MvPdfFile::setInformation(const QByteArray &value)
{
    if (m_objects)
        m_objects->setInformation(value);
}

void MvPdfFile::setLeastVersion(const QByteArray &version)
{
    if (m_objects)
        m_objects->setLeastVersion(version);
}

MvOutcome MvPdfFile::write(QFile &file)
{
    return m_objects ? m_objects->write(file) : MvOutcome{m_error, {}};
}
