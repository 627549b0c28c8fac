// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvQpdfObjects.h"

#include "MvCore/MvFileDescriptor.h"
#include "MvProject/MvPdfPipeline.h"

#include <QDir>
#include <QFile>
#include <QTemporaryFile>

#include <algorithm>
#include <exception>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

namespace {

constexpr qsizetype large = 1 << 15; // bytes
constexpr qsizetype piece = 1 << 16;

} // namespace

struct MvQpdfObjects::Private
{
    QPDF pdf;
    QTemporaryFile waiting{QDir::tempPath() + QStringLiteral("/mvcalendar-XXXXXX")};
    QString error;
    std::string leastVersion;

    QPDFObjectHandle parsed(const QByteArray &value)
    {
        try {
            return QPDFObjectHandle::parse(&pdf, value.toStdString());
        } catch (const std::exception &exception) {
            fail(QString::fromUtf8(exception.what()));
            return QPDFObjectHandle::newNull();
        }
    }

    void fail(const QString &reason)
    {
        if (error.isEmpty())
            error = reason;
    }

    /// Hands a part of what waits on, in pieces.
    void give(qint64 place, qint64 size, Pipeline *next)
    {
        if (!waiting.seek(place))
            fail(waiting.errorString());
        while (size > 0) {
            const QByteArray bytes = waiting.read(std::min(size, qint64(piece)));
            if (bytes.isEmpty()) {
                fail(waiting.errorString());
                break;
            }
            next->write(reinterpret_cast<const unsigned char *>(bytes.constData()), size_t(bytes.size()));
            size -= bytes.size();
        }
        next->finish();
    }

    void setContent(QPDFObjectHandle &stream, const QByteArray &content)
    {
        if (content.size() < large) {
            QPDFObjectHandle dictionary = stream.getDict();
            stream.replaceStreamData(content.toStdString(), dictionary.getKey("/Filter"),
                                     dictionary.getKey("/DecodeParms"));
            return;
        }
        if (!waiting.isOpen() && !waiting.open())
            fail(waiting.errorString());
        const qint64 place = waiting.size();
        if (!waiting.seek(place) || waiting.write(content) != content.size())
            fail(MvFileDescriptor::writeErrorText(waiting));
        stream.replaceStreamData([this, place, size = content.size()](Pipeline *next) { give(place, size, next); },
                                 stream.getDict().getKey("/Filter"), stream.getDict().getKey("/DecodeParms"));
    }
};

MvQpdfObjects::MvQpdfObjects()
    : d(new Private)
{
    d->pdf.setSuppressWarnings(true);
    d->pdf.emptyPDF();
}

MvQpdfObjects::~MvQpdfObjects() = default;

int MvQpdfObjects::reserve()
{
    return d->pdf.makeIndirectObject(QPDFObjectHandle::newNull()).getObjectID();
}

void MvQpdfObjects::set(int object, const QByteArray &value)
{
    d->pdf.replaceObject(object, 0, d->parsed(value));
}

int MvQpdfObjects::add(const QByteArray &value)
{
    return d->pdf.makeIndirectObject(d->parsed(value)).getObjectID();
}

int MvQpdfObjects::addPackedStream(const QByteArray &entries, const QByteArray &content)
{
    QPDFObjectHandle stream = QPDFObjectHandle::newStream(&d->pdf);
    stream.replaceDict(d->parsed("<<" + entries + ">>"));
    d->setContent(stream, content);
    return stream.getObjectID();
}

void MvQpdfObjects::setCatalog(const QByteArray &value)
{
    set(d->pdf.getRoot().getObjectID(), value);
}

void MvQpdfObjects::setInformation(const QByteArray &value)
{
    d->pdf.getTrailer().replaceKey("/Info", d->pdf.makeIndirectObject(d->parsed(value)));
}

void MvQpdfObjects::setLeastVersion(const QByteArray &version)
{
    d->leastVersion = version.toStdString();
}

MvOutcome MvQpdfObjects::write(QFile &file)
{
    if (d->waiting.isOpen() && !d->waiting.flush())
        d->fail(MvFileDescriptor::writeErrorText(d->waiting));
    if (!d->error.isEmpty())
        return {d->error, {}};
    MvPdfPipeline pipeline(file);
    try {
        QPDFWriter writer(d->pdf);
        writer.setOutputPipeline(&pipeline);
        writer.setObjectStreamMode(qpdf_o_generate);
        if (!d->leastVersion.empty())
            writer.setMinimumPDFVersion(d->leastVersion);
        writer.setDeterministicID(true);
        writer.write();
    } catch (const std::exception &exception) {
        d->fail(QString::fromUtf8(exception.what()));
    }
    if (!pipeline.error().isEmpty())
        d->fail(pipeline.error());
    return {d->error, {}};
}

extern "C" Q_DECL_EXPORT MvPdfObjects *mvMakePdfObjects()
{
    return new MvQpdfObjects;
}
