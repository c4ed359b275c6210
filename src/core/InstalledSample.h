// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

// The sample story that comes with the program: an album and its pictures in one folder, which only
// the administrator may be able to write. The album names the pictures by their paths below that
// folder, so it is only read from a copy.
namespace GeneralModule {

// Full path of the sample's album beside the program; empty when none is installed.
QString InstalledSample();

struct SampleCopy
{
    QString album; // full path; empty when there is none
    QString error; // why, for the user to read; empty when the user stopped it
};

// Finds the user's copy of the sample in that folder, where it has a folder of its own, or else
// makes one. Nothing that is there already is changed, and a copy is there completely or not at
// all; what a killed program left is removed. Opens no boxes, and may run in a thread of its own.
SampleCopy ProvideSample(const QString& sample, const QString& folder,
                         const std::function<bool()>& isStopped);

} // namespace GeneralModule
