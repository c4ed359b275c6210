// SPDX-License-Identifier: MIT
#pragma once

#include "platform/shell/ProgramFolder.h"

#include <QProcess>
#include <QString>
#include <QStringList>

struct ConvertResult
{
    int status;
    QString output;
    QString errors;
};

// Calls the program with --convert, as scripts call it, where there is no display.
inline ConvertResult Convert(const QStringList& arguments)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(name);
    program.setProcessEnvironment(environment);
    program.start(ProgramFile("lumenark"), QStringList("--convert") + arguments);
    if (!program.waitForFinished(60000) || program.exitStatus() != QProcess::NormalExit)
        return {-1, {}, program.errorString()};
    return {program.exitCode(), QString::fromLocal8Bit(program.readAllStandardOutput()),
            QString::fromLocal8Bit(program.readAllStandardError())};
}
