// SPDX-License-Identifier: MIT
#include "platform/shell/SystemInfo.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>

#include <optional>

namespace {

struct Command
{
    QString program;
    QStringList arguments;
};

QVariant ReadMachineSetting(const QString& keyName, const QString& valueName)
{
    const QSettings file(QSettings::IniFormat, QSettings::SystemScope,
                         QStringLiteral("QVRLumenark"));
    return file.value(QString(keyName).replace(u'\\', u'/') + u'/' + valueName);
}

// None when the registry has no usable entry.
std::optional<Command> CommandFromRegistry()
{
    QString path;
    if (GetKeyValue(RegistryRoot::LocalMachine,
                    QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"),
                    QStringLiteral("PATH"), path))
        return Command{path, {}};
    if (!GetKeyValue(RegistryRoot::LocalMachine,
                     QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location"),
                     QStringLiteral("MSINFO"), path))
        return std::nullopt;
    path += QDir::separator() + QStringLiteral("MSINFO32.EXE");
    return QFileInfo(path).isFile() ? std::optional(Command{path, {}}) : std::nullopt;
}

std::optional<Command> CommandOfDesktop()
{
    for (const Command& command : {
             Command{QStringLiteral("kinfocenter"), {}},
             Command{QStringLiteral("hardinfo2"), {}},
             Command{QStringLiteral("hardinfo"), {}},
             Command{QStringLiteral("gnome-control-center"), {QStringLiteral("info-overview")}},
             Command{QStringLiteral("cinnamon-settings"), {QStringLiteral("info")}},
         }) {
        const QString program = QStandardPaths::findExecutable(command.program);
        if (!program.isEmpty())
            return Command{program, command.arguments};
    }
    return std::nullopt;
}

} // namespace

bool GetKeyValue(RegistryRoot, const QString& keyName, const QString& valueName, QString& value)
{
    const QVariant stored = ReadMachineSetting(keyName, valueName);
    if (!stored.isValid())
        return false;
    if (stored.typeId() == QMetaType::QByteArray)
        value = QString::fromLatin1(stored.toByteArray().toHex());
    else
        value = stored.toString().section(QChar(u'\0'), 0, 0);
    return true;
}

bool StartSysInfo()
{
    std::optional<Command> command = CommandFromRegistry();
    if (!command)
        command = CommandOfDesktop();
    return command && QProcess::startDetached(command->program, command->arguments);
}
