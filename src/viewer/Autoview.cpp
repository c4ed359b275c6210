// SPDX-License-Identifier: MIT
#include "viewer/Autoview.h"

#include "core/Parameters.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "viewer/ViewerFlags.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

using GeneralModule::AutoviewOn;

namespace {

constexpr double millisecondsPerSecond = 1000;
constexpr qint16 usualDelay = 10000; // milliseconds
constexpr qint16 longestDelay = std::numeric_limits<qint16>::max();

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
    clock_.start();
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
        WaitUntil(clock_.elapsed() + delay_);
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

void Autoview::WaitUntil(qint64 due)
{
    due_ = due;
    timImage_.start(int(std::max<qint64>(due_ - clock_.elapsed(), 0)));
}

// Steps keep their pace however long each takes, but what was shown late still stays for half of
// the delay.
void Autoview::timImage_Timer()
{
    const qint64 due = due_;
    {
        const auto pause = Pause();
        if (isInFront_())
            RunGuarded(step_);
    }
    if (AutoviewOn)
        WaitUntil(std::max(due + delay_, clock_.elapsed() + delay_ / 2));
}
