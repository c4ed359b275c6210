// SPDX-License-Identifier: MIT
#include "platform/picture/PausableDecoding.h"

#include <exception>
#include <system_error>
#include <utility>

PausableDecoding::PausableDecoding(const PictureRequest& request, DecodingSignal& signal)
    : request_(request), signal_(signal), picture_(request.path, [this] { return Pass(); })
{
}

PausableDecoding::~PausableDecoding()
{
    {
        const std::lock_guard lock(signal_.mutex);
        isGivenUp_ = true;
    }
    resumed_.notify_one();
    if (thread_.joinable())
        thread_.join();
}

bool PausableDecoding::IsPausable()
{
    return picture_.CanBeHeld();
}

void PausableDecoding::Resume()
{
    {
        const std::lock_guard lock(signal_.mutex);
        mayRun_ = true;
    }
    if (thread_.joinable())
        return resumed_.notify_one();
    try {
        thread_ = std::thread([this] { Run(); });
    } catch (const std::system_error&) {
        Run();
    }
}

void PausableDecoding::Pause()
{
    const std::lock_guard lock(signal_.mutex);
    mayRun_ = false;
}

QImage PausableDecoding::TakeImage()
{
    if (thread_.joinable())
        thread_.join();
    return std::move(image_);
}

void PausableDecoding::Run()
{
    try {
        image_ = picture_.Read(request_.size);
    } catch (const std::exception&) {
        image_ = {}; // out of memory: as good as damaged
    }
    const std::lock_guard lock(signal_.mutex);
    isDone_ = true;
    signal_.changed.notify_one();
}

bool PausableDecoding::Pass()
{
    std::unique_lock lock(signal_.mutex);
    if (!mayRun_ && !isGivenUp_) {
        isWaiting_ = true;
        signal_.changed.notify_one();
        resumed_.wait(lock, [this] { return mayRun_ || isGivenUp_; });
        isWaiting_ = false;
    }
    return !isGivenUp_;
}
