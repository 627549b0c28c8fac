// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvModelBase/MvFontSupply.h"

#include "MvModelBase/MvComputerFonts.h"
#include "MvModelBase/MvShippedFonts.h"

#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QRawFont>

#include <algorithm>
#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

#include <hb.h>

namespace {

struct ReleaseCharacters
{
    void operator()(hb_set_t *characters) const { hb_set_destroy(characters); }
};
using Characters = std::unique_ptr<hb_set_t, ReleaseCharacters>;

Characters charactersOf(const QByteArray &file)
{
    Characters characters(hb_set_create());
    hb_blob_t *bytes =
        hb_blob_create(file.constData(), static_cast<unsigned>(file.size()), HB_MEMORY_MODE_READONLY, nullptr, nullptr);
    hb_face_t *face = hb_face_create(bytes, 0);
    hb_face_collect_unicodes(face, characters.get());
    hb_face_destroy(face);
    hb_blob_destroy(bytes);
    return characters;
}

/// A face that was asked for.
struct Known
{
    QString family;
    int weight;
    QFont::Style style;
    QByteArray file;
    Characters characters;

    bool isOf(const QFont &font) const
    {
        return weight == font.weight() && style == font.style() && family == font.family();
    }
    bool isOf(const QRawFont &font) const
    {
        return weight == font.weight() && style == font.style() && family == font.familyName();
    }
    bool hasAllOf(const QString &text) const
    {
        const auto isThere = [this](uint c) { return c < U' ' || hb_set_has(characters.get(), c); };
        const QList<uint> all = text.toUcs4();
        return std::all_of(all.cbegin(), all.cend(), isThere);
    }
};

std::atomic<bool> isOnDemand = false;
std::atomic<int> makingKnown = 0;

struct MakingKnown
{
    MakingKnown() { ++makingKnown; }
    ~MakingKnown() { --makingKnown; }
    MakingKnown(const MakingKnown &) = delete;
    MakingKnown &operator=(const MakingKnown &) = delete;
};

class Supply
{
public:
    static Supply &instance()
    {
        static Supply supply;
        return supply;
    }

    /// The face of a font; null when everything is known now.
    const Known *face(const QFont &font)
    {
        if (const Known *known = find(font))
            return known;
        const MakingKnown making;
        const QByteArray file = MvShippedFonts::registerFace(font);
        if (file.isEmpty()) {
            provideAll();
            return nullptr;
        }
        m_known.push_back(
            std::make_unique<Known>(Known{font.family(), font.weight(), font.style(), file, charactersOf(file)}));
        return m_known.back().get();
    }

    template <typename Font>
    const Known *find(const Font &font) const
    {
        const auto known =
            std::find_if(m_known.cbegin(), m_known.cend(), [&font](const auto &each) { return each->isOf(font); });
        return known != m_known.cend() ? known->get() : nullptr;
    }

    void provideAll()
    {
        const MakingKnown making;
        MvComputerFonts::read();
        MvShippedFonts::registerAll();
        MvShippedFonts::refreshOthers();
        m_known.clear();
        isOnDemand = false; // last: until then others wait
    }

    std::recursive_mutex mutex; // fonts that become known are announced, and who hears of it may ask for one

private:
    std::vector<std::unique_ptr<Known>> m_known; // few
};

bool hasFonts()
{
    return qobject_cast<const QGuiApplication *>(QCoreApplication::instance()) != nullptr;
}

} // namespace

void MvFontSupply::makeOnDemand()
{
    MvComputerFonts::putOff();
    isOnDemand = true;
}

void MvFontSupply::start()
{
    if (!hasFonts() || isOnDemand)
        return;
    static const bool isStarted [[maybe_unused]] = (MvShippedFonts::registerAll(), true);
}

void MvFontSupply::provide(const QFont &font)
{
    if (!isOnDemand || !hasFonts())
        return;
    Supply &supply = Supply::instance();
    const std::lock_guard lock(supply.mutex);
    if (isOnDemand)
        supply.face(font);
}

void MvFontSupply::provide(const QFont &font, const QString &text)
{
    if (!isOnDemand || !hasFonts())
        return;
    Supply &supply = Supply::instance();
    const std::lock_guard lock(supply.mutex);
    if (!isOnDemand)
        return;
    const Known *face = supply.face(font);
    if (face && !face->hasAllOf(text))
        supply.provideAll();
}

QByteArray MvFontSupply::fileOf(const QRawFont &font)
{
    if (!isOnDemand)
        return {};
    Supply &supply = Supply::instance();
    const std::lock_guard lock(supply.mutex);
    const Known *known = supply.find(font);
    return known ? known->file : QByteArray();
}

void MvFontSupply::provideAll()
{
    if (!isOnDemand || !hasFonts())
        return;
    Supply &supply = Supply::instance();
    const std::lock_guard lock(supply.mutex);
    if (isOnDemand)
        supply.provideAll();
}

void MvFontSupply::whenFontsChange(const std::function<void()> &forget)
{
    if (!hasFonts())
        return;
    QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, qGuiApp, [forget] {
        if (makingKnown == 0)
            forget();
    });
}

bool MvFontSupply::hasFamily(const QString &family)
{
    if (MvShippedFonts::hasFamily(family))
        return true;
    provide(QFont(family));
    return QFontDatabase::hasFamily(family);
}
