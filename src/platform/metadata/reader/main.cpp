// SPDX-License-Identifier: GPL-2.0-or-later
// Reads what picture files say of themselves for Lumenark, which starts it as a separate process:
// such files come from anywhere, and a damaged one can make the library that reads them crash.
// Nothing is ever written to a file here. MetadataStream.h describes requests and answers.
//
//   lumenark-metadata read LANGUAGE [careful]
//   lumenark-metadata sidecar [careful]
//
// Careful: every answer is written at once.
#include "PictureFields.h"
#include "SidecarPacket.h"

#include "platform/helper/child/Limits.h"
#include "platform/helper/child/RequestReader.h"

#include <exiv2/exiv2.hpp>

#include <cstdlib>
#include <iostream>

namespace {

constexpr long secondsPerFile = 2; // of processor time; a file takes a thousandth
constexpr std::size_t maxMemory = 512 * 1024 * 1024;

// As HelperQueue expects them.
constexpr unsigned char readyFrame = 'H';
constexpr unsigned char answerFrame = 'A';

void WriteNothing(FrameWriter& stream, std::uint32_t number)
{
    stream.Cancel();
    stream.Begin(answerFrame);
    stream.Number(number);
    stream.Number(MetadataStream::Damaged);
}

// An empty language: sidecars are asked for.
void Answer(const RequestReader& requests, const std::string& language, FrameWriter& stream)
{
    LimitProcessorTime(secondsPerFile);
    stream.Begin(answerFrame);
    stream.Number(requests.GetNumber());
    try {
        if (language.empty())
            WriteSidecarPacket(requests.GetBytes(), stream);
        else
            WritePictureFields(requests.GetBytes(), language, stream);
        if (stream.GetFrameSize() > FrameStream::largestFrame)
            WriteNothing(stream, requests.GetNumber());
    } catch (const std::exception&) { // the library also throws errors that are not its own
        WriteNothing(stream, requests.GetNumber());
    }
    stream.End();
}

int Run(int argc, char** argv)
{
    const std::string mode = argc > 1 ? argv[1] : "";
    const bool isReading = mode == "read" && argc > 2;
    if (!isReading && mode != "sidecar") {
        std::cerr << "lumenark-metadata is started by lumenark, to read what pictures say\n";
        return 2;
    }
    const std::string language = isReading ? argv[2] : "";
    const bool isCareful = argc > (isReading ? 3 : 2);
    FrameWriter stream(TakeOutput());
    Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
    Exiv2::XmpParser::initialize();
    Exiv2::XmpProperties::registerNs(MetadataStream::ownNamespace, MetadataStream::ownPrefix);
    stream.Begin(readyFrame);
    stream.End();
    RequestReader requests([&stream] { stream.Flush(); });
    while (requests.Next()) {
        Answer(requests, language, stream);
        if (isCareful)
            stream.Flush();
    }
    stream.Flush();
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    LimitMemory(maxMemory);
    std::_Exit(Run(argc, argv));
}
