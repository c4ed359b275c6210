// SPDX-License-Identifier: MIT
#include "core/oldalbum/OldAlbum.h"

#include "core/oldalbum/OldAlbumConversion.h"
#include "platform/dialogs/Dialogs.h"

#include <QDir>
#include <QFileInfo>

namespace {

using namespace GeneralModule;

// The password that fits, empty where there is none; nothing when the user gave up.
std::optional<QString> AskPassword(const OldAlbumFile& old, const QString& path)
{
    QString password;
    while (old.HasPassword() && !old.PasswordFits(password)) {
        password = Dialogs::Door().AskText(
            {.prompt = OldAlbumReport::tr("Please give the password for : %1").arg(path),
             .note = password.isEmpty() ? QString() : OldAlbumReport::tr("Wrong password"),
             .isPassword = true});
        if (password.isEmpty())
            return std::nullopt;
    }
    return password;
}

// "Holiday.alb" becomes "Holiday (new).alb", or the first "Holiday (new 2).alb" that is free.
QString ProposedName(const QFileInfo& old)
{
    const QString base = old.completeBaseName();
    QString name = OldAlbumReport::tr("%1 (new).alb").arg(base);
    for (int number = 2; QFileInfo::exists(old.absoluteDir().filePath(name)); ++number)
        name = OldAlbumReport::tr("%1 (new %2).alb").arg(base, QString::number(number));
    return name;
}

QString AskTarget(const QString& path)
{
    const QFileInfo old(path);
    const auto answer = Dialogs::Door().Ask(
        {OldAlbumReport::tr(
             "'%1' is an album of the former file format. Shall a new album be made of it? The old "
             "one stays as it is.")
             .arg(QDir::toNativeSeparators(path)),
         Dialogs::Icon::Question, Dialogs::Buttons::YesNo});
    if (answer != Dialogs::Answer::Yes)
        return {};
    return Dialogs::Door().AskSaveFile(
        {OldAlbumReport::tr("Save the new Album"), OldAlbumReport::tr("Album|*.alb"),
         QDir::toNativeSeparators(old.absolutePath()), ProposedName(old)});
}

struct Stopped
{
};

// None when the user stopped it; then there is no new album.
std::optional<OldAlbumReport> Convert(OldAlbumFile& old, const QString& target,
                                      const QString& password)
{
    OldAlbumReport report;
    try {
        Dialogs::Door().RunLong(
            OldAlbumReport::tr("The new album is being made..."), true, [&](const auto& isStopped) {
                const auto check = [&isStopped] {
                    if (isStopped())
                        throw Stopped();
                };
                // The dialog has asked before it gave a name that is taken.
                report = ConvertOldAlbum(
                    old,
                    {.target = target, .password = password, .replaces = true, .check = check});
            });
    } catch (const Stopped&) {
        return std::nullopt;
    }
    return report;
}

QString Compose(const OldAlbumReport& report, const QString& target)
{
    QStringList text{
        OldAlbumReport::tr("The new album is '%1'.").arg(QDir::toNativeSeparators(target)),
        report.Summary()};
    if (!report.IsWhole()) {
        text += QString();
        text += OldAlbumReport::tr("Not everything is as it was:");
        text += report.Problems();
    }
    const QStringList hint = report.FolderHint();
    if (!hint.isEmpty()) {
        text += QString();
        text += hint;
    }
    return text.join(u'\n');
}

} // namespace

namespace GeneralModule {

std::optional<NewAlbum> OfferConversion(const QString& path)
{
    OldAlbumFile old(path);
    const std::optional<QString> password = AskPassword(old, path);
    if (!password)
        return std::nullopt;
    const QString target = AskTarget(path);
    if (target.isEmpty())
        return std::nullopt;
    const std::optional<OldAlbumReport> report = Convert(old, target, *password);
    if (!report)
        return std::nullopt;
    return NewAlbum{target, *password, Compose(*report, target), report->IsWhole()};
}

} // namespace GeneralModule
