// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvHyphenator.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvPaint/MvHyphenationPatterns.h"

#include <QCache>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMutex>
#include <QStringDecoder>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <hyphen.h>
#include <mutex>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestRun = 300; // letters; anything longer is not a word
constexpr int mostWords = 5000;       // kept per language
constexpr QChar softHyphen(0x00ad);
const QString hyphen = u"-"_s; // every font has it

/// The letters between two other characters of a word: composed and small, as patterns know them.
struct Run
{
    QString letters;
    QList<qsizetype> starts; // of each letter in the word; the run's end follows the last one
    QList<qsizetype> soft;   // places of soft hyphens in the word
};

bool isApostrophe(char16_t c)
{
    return c == u'\'' || c == u'’' || c == u'·'; // the last one parts letters in Catalan
}

/// After these a word may be divided as it is.
bool isDivider(QChar c)
{
    const char16_t u = c.unicode();
    return u == u'-' || u == 0x2010 || u == 0x2013 || u == 0x2014 || u == u'/';
}

/// The runs of letters of a word.
QList<Run> runsOf(const QString &word)
{
    QList<Run> runs;
    Run run;
    const auto finish = [&](qsizetype end) {
        run.starts.append(end);
        if (!run.letters.isEmpty())
            runs.append(run);
        run = Run();
    };
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, word);
    for (qsizetype start = 0, end = finder.toNextBoundary(); end > start; start = end, end = finder.toNextBoundary()) {
        if (word.at(start) == softHyphen) {
            run.soft.append(start);
            continue;
        }
        const QString composed = word.mid(start, end - start).normalized(QString::NormalizationForm_C);
        const QChar c = composed.isEmpty() ? QChar() : composed.at(0);
        const bool isInside = !run.letters.isEmpty() && isApostrophe(c.unicode());
        if (composed.size() == 1 && (c.isLetter() || isInside)) {
            run.letters.append(c == u'’' ? QChar(u'\'') : c.toLower());
            run.starts.append(start);
        } else {
            finish(start);
        }
    }
    finish(word.size());
    return runs;
}

/// The result of libhyphen for one word. The library allocates the buffers.
struct Answer
{
    /// Reads the patterns, a whole file of them, and applies them.
    Answer(QByteArray patterns, const QByteArray &word, int fewestBefore, int fewestAfter);
    ~Answer();
    Answer(const Answer &) = delete;
    Answer &operator=(const Answer &) = delete;

    bool mayBreakAfter(qsizetype letter) const { return isGiven && (hyphens[size_t(letter)] & 1); }

    bool isGiven = false;
    std::vector<char> hyphens;
    qsizetype size;
    char **replacements = nullptr;
    int *positions = nullptr;
    int *cuts = nullptr;
};

Answer::Answer(QByteArray patterns, const QByteArray &word, int fewestBefore, int fewestAfter)
    : hyphens(size_t(word.size()) + 16)
    , size(word.size())
{
    FILE *file = fmemopen(patterns.data(), size_t(patterns.size()), "r");
    HyphenDict *dictionary = file ? hnj_hyphen_load_file(file) : nullptr;
    if (file)
        std::fclose(file);
    if (!dictionary)
        return;
    isGiven = hnj_hyphen_hyphenate3(dictionary, word.constData(), int(word.size()), hyphens.data(), nullptr,
                                    &replacements, &positions, &cuts, fewestBefore, fewestAfter, dictionary->clhmin,
                                    dictionary->crhmin) == 0;
    hnj_hyphen_free(dictionary);
}

Answer::~Answer()
{
    for (qsizetype i = 0; replacements && i < size; ++i)
        std::free(replacements[i]);
    std::free(replacements);
    std::free(positions);
    std::free(cuts);
}

} // namespace

/// The patterns of one file, read when they are first asked for.
struct MvHyphenatorImpl
{
    explicit MvHyphenatorImpl(const QString &file)
        : path(file)
    {}

    bool load();
    bool readEncoding(const QByteArray &name);
    QByteArray encoded(const QString &letters) const;
    QString decoded(const char *bytes) const;
    QList<MvWordBreak> breaksOf(const QString &word) const;
    void addPatternBreaks(const QString &word, const Run &run, QList<MvWordBreak> &breaks) const;
    MvWordBreak breakAt(const QString &word, const Run &run, qsizetype letter, const Answer &answer) const;

    const QString path;
    std::once_flag isRead;
    std::unique_ptr<MvHyphenationPatterns> patterns;
    bool isUtf8 = true;
    QString characters; // of the bytes of an encoding with one byte each
    QHash<QChar, char> bytes;

    QMutex mutex; // of the words
    QCache<QString, QList<MvWordBreak>> words{mostWords};
};

bool MvHyphenatorImpl::load()
{
    std::call_once(isRead, [this] {
        auto read = std::make_unique<MvHyphenationPatterns>(path);
        if (!read->isEmpty() && readEncoding(read->encoding()))
            patterns = std::move(read);
    });
    return patterns != nullptr;
}

bool MvHyphenatorImpl::readEncoding(const QByteArray &name)
{
    isUtf8 = name == "UTF-8"; // in the library's spelling
    if (isUtf8)
        return true;
    QStringDecoder decoder(name.constData(), QStringDecoder::Flag::Stateless);
    for (int byte = 0; decoder.isValid() && byte < 256; ++byte) {
        const char single = char(byte);
        const QString text = decoder.decode(QByteArrayView(&single, 1));
        characters.append(text.size() == 1 ? text.at(0) : QChar(QChar::ReplacementCharacter));
        bytes.insert(characters.back(), single);
    }
    bytes.remove(QChar::ReplacementCharacter);
    return !bytes.isEmpty();
}

/// Empty when the patterns' encoding lacks one of the letters.
QByteArray MvHyphenatorImpl::encoded(const QString &letters) const
{
    if (isUtf8)
        return letters.toUtf8();
    QByteArray text;
    for (const QChar c : letters) {
        const auto byte = bytes.constFind(c);
        if (byte == bytes.cend())
            return {};
        text.append(*byte);
    }
    return text;
}

QString MvHyphenatorImpl::decoded(const char *text) const
{
    if (isUtf8)
        return QString::fromUtf8(text);
    QString decoded;
    for (const char *byte = text; *byte; ++byte)
        decoded.append(characters.at(static_cast<unsigned char>(*byte)));
    return decoded;
}

MvWordBreak MvHyphenatorImpl::breakAt(const QString &word, const Run &run, qsizetype letter, const Answer &answer) const
{
    const qsizetype after = run.starts.at(letter + 1);
    const MvWordBreak plain{after, hyphen, {}, after};
    if (!answer.replacements || !answer.replacements[letter])
        return plain;
    // "ff=f" for the letters from `first` on: what the ends of both lines look like
    const QStringList ends = decoded(answer.replacements[letter]).split(u'=');
    const qsizetype first = letter - answer.positions[letter] + 1;
    const qsizetype last = first + answer.cuts[letter];
    if (ends.size() != 2 || first < 0 || last < first || last > run.letters.size())
        return plain;
    const bool isUpper = letter > 0 && word.at(run.starts.at(letter)).isUpper();
    return {run.starts.at(first), (isUpper ? ends[0].toUpper() : ends[0]) + hyphen,
            isUpper ? ends[1].toUpper() : ends[1], run.starts.at(last)};
}

void MvHyphenatorImpl::addPatternBreaks(const QString &word, const Run &run, QList<MvWordBreak> &breaks) const
{
    const qsizetype count = run.letters.size();
    if (!patterns || count < MvHyphenator::fewestBefore + MvHyphenator::fewestAfter || count > longestRun)
        return;
    const QByteArray text = encoded(run.letters);
    if (text.isEmpty())
        return;
    const int before = std::max(MvHyphenator::fewestBefore, patterns->fewestBefore());
    const int after = std::max(MvHyphenator::fewestAfter, patterns->fewestAfter());
    const Answer answer(patterns->excerpt(text), text, before, after);
    for (qsizetype letter = before - 1; letter < count - after; ++letter) {
        if (answer.mayBreakAfter(letter))
            breaks.append(breakAt(word, run, letter, answer));
    }
}

QList<MvWordBreak> MvHyphenatorImpl::breaksOf(const QString &word) const
{
    QList<MvWordBreak> breaks;
    const QList<Run> runs = runsOf(word);
    for (const Run &run : runs) {
        if (run.soft.isEmpty())
            addPatternBreaks(word, run, breaks);
        for (const qsizetype at : run.soft) {
            if (at > 0 && at + 1 < word.size())
                breaks.append({at, hyphen, {}, at + 1});
        }
    }
    for (qsizetype i = MvHyphenator::fewestBefore; i + 2 < word.size(); ++i) {
        if (isDivider(word.at(i)) && word.at(i + 1).isLetter())
            breaks.append({i + 1, {}, {}, i + 1});
    }
    std::sort(breaks.begin(), breaks.end(), [](const MvWordBreak &a, const MvWordBreak &b) { return a.end < b.end; });
    return breaks;
}

namespace {

const QString systemFolder = u"/usr/share/hyphen"_s;

/// Names of pattern files for a language: as in its country, as in the country most speak it in, as anywhere.
QStringList fileNames(const MvLocale &language)
{
    QStringList names;
    for (const QString &name : {language.name(), QLocale(language.language()).name(), language.language()})
        names.append(u"hyph_"_s + name + u".dic"_s);
    return names;
}

} // namespace

MvHyphenator::MvHyphenator()
    : MvHyphenator(MvLocale())
{}

MvHyphenator::MvHyphenator(const MvLocale &language)
{
    static QMutex mutex;
    static QHash<MvLocale, std::shared_ptr<MvHyphenatorImpl>> known;
    const QMutexLocker lock(&mutex);
    std::shared_ptr<MvHyphenatorImpl> &found = known[language];
    if (!found)
        found = std::make_shared<MvHyphenatorImpl>(fileFor(language));
    d = found;
}

MvHyphenator::MvHyphenator(std::shared_ptr<MvHyphenatorImpl> impl)
    : d(std::move(impl))
{}

MvHyphenator MvHyphenator::fromFile(const QString &path)
{
    return MvHyphenator(std::make_shared<MvHyphenatorImpl>(path));
}

QString MvHyphenator::fileFor(const MvLocale &language)
{
    if (!language.isValid())
        return {};
    const QStringList names = fileNames(language);
    for (const QString &name : names) {
        if (const QFileInfo file = MvDirectoryConfig::instance().resource(u"hyphenation/"_s + name); file.isFile())
            return file.filePath();
    }
    const QDir system(systemFolder);
    const QStringList others =
        system.entryList({u"hyph_"_s + language.language() + u"_*.dic"_s}, QDir::Files, QDir::Name);
    for (const QString &name : names + others) {
        if (const QFileInfo file(system, name); file.isFile())
            return file.canonicalFilePath();
    }
    return language.language() == u"lb"_s ? fileFor(MvLocale(u"de_LU"_s)) : QString();
}

bool MvHyphenator::hasPatterns() const
{
    return d->load();
}

QList<MvWordBreak> MvHyphenator::breaks(const QString &word) const
{
    {
        const QMutexLocker lock(&d->mutex);
        if (const QList<MvWordBreak> *known = d->words.object(word))
            return *known;
    }
    d->load();
    const QList<MvWordBreak> fresh = d->breaksOf(word);
    if (word.size() <= longestRun) {
        const QMutexLocker lock(&d->mutex);
        d->words.insert(word, new QList<MvWordBreak>(fresh));
    }
    return fresh;
}

QString MvHyphenator::withoutSoftHyphens(const QString &text)
{
    return text.contains(softHyphen) ? QString(text).remove(softHyphen) : text;
}
