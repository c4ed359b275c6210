// SPDX-License-Identifier: MIT
#include "viewer/Autoview.h"

#include "core/Parameters.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "viewer/ViewerFlags.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

using GeneralModule::AutoviewOn;

namespace {

constexpr double millisecondsPerSecond = 1000;
constexpr qint16 usualDelay = 10000; // milliseconds
constexpr qint16 longestDelay = std::numeric_limits<qint16>::max();

// How long to wait after a step that took that long; both in milliseconds. The work is part of the
// delay, so that steps keep their pace, but what was shown late still stays for half of it.
int RestOfDelay(int delay, qint64 worked)
{
    return int(std::max<qint64>(delay - worked, delay / 2));
}

} // namespace

qint16 DelayFromAnswer(const QString& answer)
{
    static const QRegularExpression number(QStringLiteral("^\\s*\\+?(\\d+[.,]?\\d*|[.,]\\d+)"));
    const QString digits = number.match(answer).captured(1).replace(u',', u'.');
    const double milliseconds = digits.toDouble() * millisecondsPerSecond;
    if (!(milliseconds > 0))
        return usualDelay;
    return qint16(std::nearbyint(std::clamp<double>(milliseconds, 1, longestDelay)));
}

QString ProposedDelay()
{
    const qint16 stored = GeneralModule::GetTimerDelay();
    return QString::number((stored > 0 ? stored : usualDelay) / millisecondsPerSecond);
}

Autoview::Autoview(std::function<void()> step, std::function<bool()> isInFront, QObject* parent)
    : QObject(parent), step_(std::move(step)), isInFront_(std::move(isInFront))
{
    timImage_.setParent(this);
    timImage_.setObjectName(QStringLiteral("timImage"));
    timImage_.setSingleShot(true);
    timImage_.setTimerType(Qt::PreciseTimer);
    connect(&timImage_, &QTimer::timeout, this, &Autoview::timImage_Timer);
}

bool Autoview::Switch()
{
    const auto pause = Pause();
    if (!AutoviewOn) {
        const QString answer = Dialogs::Door().AskText(
            {.prompt = QCoreApplication::translate("Autoview", "Please enter delay in seconds : "),
             .proposal = ProposedDelay(),
             .title = QCoreApplication::translate("Autoview", "Autoview Mode")});
        if (answer.isNull())
            return false;
        delay_ = DelayFromAnswer(answer);
        GeneralModule::SaveTimerDelay(delay_);
    }
    Set(!AutoviewOn);
    return true;
}

void Autoview::End()
{
    timImage_.stop();
    if (AutoviewOn)
        Set(false);
}

void Autoview::Set(bool on)
{
    AutoviewOn = on;
    awake_.Set(on);
    emit Switched(on);
}

void Autoview::BeginPause()
{
    ++pauses_;
    timImage_.stop();
}

void Autoview::EndPause()
{
    --pauses_;
    Restore();
}

void Autoview::Restore()
{
    isHeld_ = false;
    if (pauses_ > 0)
        return;
    if (AutoviewOn)
        timImage_.start(delay_);
    else
        timImage_.stop();
}

void Autoview::Hold()
{
    timImage_.stop();
    isHeld_ = true;
}

void Autoview::Release()
{
    if (isHeld_)
        Restore();
}

void Autoview::timImage_Timer()
{
    QElapsedTimer worked;
    worked.start();
    {
        const auto pause = Pause();
        if (isInFront_())
            RunGuarded(step_);
    }
    if (AutoviewOn)
        timImage_.start(RestOfDelay(delay_, worked.elapsed()));
}
