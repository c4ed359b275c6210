// SPDX-License-Identifier: MIT
#include "platform/shell/StayAwake.h"

#ifdef LUMENARK_HAS_SESSION_BUS

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>

#include <optional>

struct StayAwake::State
{
    std::optional<QDBusConnection> bus;
    bool isWanted = false;
    bool isAsking = false;
    std::optional<uint> cookie; // of the desktop's promise while it holds

    static void Settle(const std::shared_ptr<State>& state);
    void Ask(const std::shared_ptr<State>& self);
    void LetGo();
    bool FindBus();
};

namespace {

QDBusMessage Call(const QString& method)
{
    const QString name = QStringLiteral("org.freedesktop.ScreenSaver");
    QDBusMessage message = QDBusMessage::createMethodCall(
        name, QStringLiteral("/org/freedesktop/ScreenSaver"), name, method);
    message.setAutoStartService(false);
    return message;
}

// Without a running bus, a connection attempt would start one.
bool IsSessionBusThere()
{
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

} // namespace

bool StayAwake::State::FindBus()
{
    if (!bus && IsSessionBusThere())
        bus = QDBusConnection::sessionBus();
    return bus && bus->isConnected();
}

// Also called after each answer, because the wish may have changed since the request.
void StayAwake::State::Settle(const std::shared_ptr<State>& state)
{
    if (state->isWanted && !state->cookie && !state->isAsking)
        state->Ask(state);
    else if (!state->isWanted && state->cookie)
        state->LetGo();
}

void StayAwake::State::Ask(const std::shared_ptr<State>& self)
{
    if (!FindBus())
        return;
    QDBusMessage call = Call(QStringLiteral("Inhibit"));
    call << QCoreApplication::applicationName()
         << QCoreApplication::translate("StayAwake", "A story is on show");
    isAsking = true;
    auto* answer = new QDBusPendingCallWatcher(bus->asyncCall(call), QCoreApplication::instance());
    QObject::connect(answer, &QDBusPendingCallWatcher::finished,
                     [self](QDBusPendingCallWatcher* watcher) {
                         watcher->deleteLater();
                         self->isAsking = false;
                         const QDBusPendingReply<uint> reply = *watcher;
                         if (reply.isError())
                             return;
                         self->cookie = reply.value();
                         Settle(self);
                     });
}

void StayAwake::State::LetGo()
{
    QDBusMessage call = Call(QStringLiteral("UnInhibit"));
    call << *cookie;
    bus->asyncCall(call);
    cookie.reset();
}

StayAwake::StayAwake() : state_(std::make_shared<State>()) {}

StayAwake::StayAwake(const QString& busName) : StayAwake()
{
    state_->bus = QDBusConnection(busName);
}

void StayAwake::Set(bool on)
{
    state_->isWanted = on;
    State::Settle(state_);
}

#else

struct StayAwake::State
{
};

StayAwake::StayAwake() = default;

StayAwake::StayAwake(const QString&) {}

void StayAwake::Set(bool) {}

#endif

StayAwake::~StayAwake()
{
    Set(false);
}
