// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvScreenFotos.h"

#include <QGuiApplication>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

constexpr int step = 256; // pixels: small changes of size do not decode again
constexpr std::chrono::milliseconds watchInterval(2000);

QSize roundedUp(const QSize &size)
{
    const auto up = [](int length) { return (std::max(length, 1) + step - 1) / step * step; };
    return {up(size.width()), up(size.height())};
}

bool covers(const QSize &a, const QSize &b)
{
    return a.width() >= b.width() && a.height() >= b.height();
}

} // namespace

MvScreenFotos::MvScreenFotos(MvFotoService::Urgency urgency, QObject *parent)
    : QObject(parent)
    , m_urgency(urgency)
{
    connect(&MvFotoService::instance(), &MvFotoService::arrived, this, &MvScreenFotos::takeArrived);
    m_watch.setInterval(watchInterval);
    connect(&m_watch, &QTimer::timeout, this, &MvScreenFotos::recheck);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            recheck();
    });
}

QImage MvScreenFotos::foto(const QString &path, const QSize &bounds)
{
    if (path.isEmpty() || bounds.isEmpty())
        return {};
    State &state = m_states[path];
    if (state.isUnreadable)
        return {};
    const QSize wanted = roundedUp(bounds);
    if (!covers(state.size, wanted))
        state.size = wanted;
    MvFotoService &service = MvFotoService::instance();
    const MvFotoOrder order{path, state.size, MvFotoOrder::Fit::WithinOwnSize, state.stamp()};
    const MvFotoRequest request = service.request(order, m_urgency);
    if (request.isDone()) {
        m_latest = request;
        return request.image();
    }
    state.awaited = request;
    return otherSize(path, state);
}

bool MvScreenFotos::isAtHand(const QString &path) const
{
    const auto state = m_states.constFind(path);
    return state != m_states.cend() && !state->isUnreadable && !otherSize(path, *state).isNull();
}

QImage MvScreenFotos::otherSize(const QString &path, const State &state)
{
    return MvFotoService::instance().otherSize({path, state.size, MvFotoOrder::Fit::WithinOwnSize, state.shownStamp});
}

void MvScreenFotos::takeArrived(const MvFotoOrder &order)
{
    const auto state = m_states.find(order.path);
    if (state == m_states.end() || !state->awaited.isDone())
        return;
    m_latest = std::exchange(state->awaited, {});
    state->full = m_latest.fullSize();
    state->shownStamp = m_latest.stamp();
    state->isCurrent = true;
    state->isUnreadable = m_latest.image().isNull();
    watchUnreadable();
    Q_EMIT loaded(order.path);
}

void MvScreenFotos::clear()
{
    m_states.clear();
    m_latest = {};
    m_watch.stop();
}

void MvScreenFotos::recheck()
{
    if (m_isRechecking || m_states.isEmpty())
        return;
    m_isRechecking = true;
    const auto look = [this, paths = m_states.keys()] { // not on this thread: the folder may be far away
        QHash<QString, MvFotoStamp> stamps;
        for (const QString &path : paths)
            stamps.insert(path, MvFotoStamp::of(path));
        return [this, stamps] { takeStamps(stamps); };
    };
    MvFotoService::instance().run(m_urgency, this, look);
}

void MvScreenFotos::takeStamps(const QHash<QString, MvFotoStamp> &stamps)
{
    m_isRechecking = false;
    for (auto it = stamps.begin(); it != stamps.end(); ++it) {
        const auto known = m_states.find(it.key());
        if (known == m_states.end() || !known->isCurrent || known->shownStamp == it.value())
            continue;
        known->isCurrent = known->isUnreadable = false; // the image stays until there is a new one
        Q_EMIT loaded(it.key());
    }
    watchUnreadable();
}

void MvScreenFotos::watchUnreadable()
{
    const bool isNeeded =
        std::any_of(m_states.cbegin(), m_states.cend(), [](const State &state) { return state.isUnreadable; });
    if (isNeeded != m_watch.isActive())
        isNeeded ? m_watch.start() : m_watch.stop();
}
