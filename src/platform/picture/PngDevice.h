// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>

#include <bitset>

// A PNG file without what its pixels and colours do not need. The decoder allocates as much memory
// as a chunk claims, and inflates every text and profile completely; so it gets no texts, no
// profile of excessive size, and nothing after a chunk that claims more than the file holds.
class PngDevice : public QIODevice
{
public:
    // Opens itself at the file's current position. The file must be open and outlive this.
    explicit PngDevice(QIODevice& file);

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 maxBytes) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    bool BeginNextChunk();
    bool BeginChunk(const QByteArray& head);
    bool IsWanted(const QByteArray& type, qint64 length);

    QIODevice& file_;
    qint64 fileBytes_;
    QByteArray ready_;    // read and checked, to be given next
    qint64 streamed_ = 0; // bytes of the file to be given unchanged after ready_
    qint64 chunks_ = 0;
    std::bitset<16> seen_; // by row of the table of wanted chunks
    bool inPixels_ = false;
    bool ended_ = false;
};
