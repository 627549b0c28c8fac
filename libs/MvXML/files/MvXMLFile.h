// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvXML/mvxml_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFileInfo>
#include <QString>

class QXmlStreamReader;

/// The bytes of XML files: the one guarded way to a file from outside.
///
/// What is read must pass: a regular file, at most 64 MiB, no tag longer than 64 KiB or with more than 512 attributes,
/// no entity declarations, at most 256 levels and a million elements, well-formed. UTF-8, UTF-16, UTF-32 and
/// ISO 8859-1. A file that is more than the memory takes is an error like the others.
class MVXML_EXPORT MvXMLFile
{
    Q_DECLARE_TR_FUNCTIONS(MvXMLFile)

public:
    /// What went wrong, for a person: empty message means nothing did. Line and column count from 1, 0 when unknown.
    struct Error
    {
        QString message;
        int line = 0;
        int column = 0;

        bool isError() const { return !message.isEmpty(); }
        /// "Datei:Zeile:Spalte: message", as far as known.
        QString describe(const QFileInfo &file) const;
    };

    /// What a reader is able to take.
    struct Limits
    {
        qint64 bytes;
        int elements;
        bool isWellFormed =
            true; ///< that it is so is looked at, too; else who reads the bytes asks errorOf() in the end

        static Limits ofDocuments() { return {64LL * 1024 * 1024, 1'000'000}; }
        /// For readers that go through the bytes as a stream: about a million entries.
        static Limits ofStreams() { return {512LL * 1024 * 1024, 16'000'000}; }
        /// The same for readers that go to the end of the document themselves: nobody reads it twice.
        static Limits ofReaders() { return {ofStreams().bytes, ofStreams().elements, false}; }
    };

    /// Whether bytes that are about to be written pass these checks; else why not. Without that a saved file could be
    /// one that never opens again.
    static Error check(const QByteArray &bytes, const Limits &limits = Limits::ofDocuments());
    /// The bytes of a file, once they passed all checks but for building a document; empty on error. For readers that
    /// go through large files as a stream. UTF-16 and UTF-32 come as UTF-8, with a declaration that says so. Shipped
    /// files (":/...") are part of the program: they pass unchecked. Directories, devices and pipes are refused.
    static QByteArray loadBytes(const QFileInfo &file, Error *error = nullptr,
                                const Limits &limits = Limits::ofDocuments());
    /// Why a reader of such bytes has stopped; none when it has come to their end.
    static Error errorOf(const QXmlStreamReader &reader, const QByteArray &bytes);

    /// Embedded in the program: as it was built, and in UTF-8.
    static bool isEmbedded(const QFileInfo &file) { return file.filePath().startsWith(u':'); }

protected:
    /// The bytes of a file as they are; none on error.
    static QByteArray readLimited(const QFileInfo &file, qint64 mostBytes, Error &error);
    /// All checks; for UTF-16 and UTF-32 also the decoded text.
    static Error checkDecoding(const QByteArray &bytes, const Limits &limits, QString &wideText);
    /// That the memory does not suffice.
    static Error outOfMemory();
};
