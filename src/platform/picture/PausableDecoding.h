// SPDX-License-Identifier: MIT
#pragma once

#include "platform/picture/OpenPicture.h"
#include "platform/picture/PictureReader.h"

#include <QImage>

#include <condition_variable>
#include <mutex>
#include <thread>

// Tells the owner of several decodings that one of them has stopped.
struct DecodingSignal
{
    std::mutex mutex; // guards what the decodings' threads and their owner share
    std::condition_variable changed;
};

// One picture that a thread of its own decodes between Resume and Pause; it goes on where it was.
// All functions but the gate's belong to the owner's thread.
class PausableDecoding
{
public:
    // Reads the header; nothing is decoded yet.
    PausableDecoding(const PictureRequest& request, DecodingSignal& signal);
    // Gives up what is not done.
    ~PausableDecoding();
    PausableDecoding(const PausableDecoding&) = delete;
    PausableDecoding& operator=(const PausableDecoding&) = delete;

    // False when the picture cannot be paused, so that decoding it would hold up everything else,
    // and when it cannot be read.
    bool IsPausable();
    // Maximum memory for it in bytes.
    qint64 GetBytes() { return picture_.DecoderBytes(); }

    // Decodes all of it before it returns where the system has no thread left.
    void Resume();
    // It stops very soon. IsStill tells when.
    void Pause();
    // The lock on the signal's mutex must be held for these two.
    bool IsStill() const { return (isWaiting_ && !mayRun_) || isDone_; }
    bool IsDone() const { return isDone_; }

    // To be called once it is done: the picture, null where the file cannot be read.
    QImage TakeImage();

private:
    void Run();
    bool Pass();

    PictureRequest request_;
    DecodingSignal& signal_;
    OpenPicture picture_;
    QImage image_;
    std::condition_variable resumed_;
    bool mayRun_ = false;
    bool isGivenUp_ = false;
    bool isWaiting_ = false;
    bool isDone_ = false;
    std::thread thread_; // begins with the first Resume
};
