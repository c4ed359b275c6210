// SPDX-License-Identifier: MIT
#include "core/LocalCopy.h"

#include "core/Album.h"
#include "core/AlbumSets.h"
#include "core/TextRoutines.h"

#include <QFileInfo>

namespace {

using GeneralModule::ImageSet;

// Makes the picture's row the current one.
QString LocalCopyOf(const QString& file)
{
    ImageSet->FindFirst(QStringLiteral("[File]=") + GeneralModule::Quoted(file));
    return ImageSet->NoMatch() ? QString() : ImageSet->TextOrEmpty(u"SourceFile");
}

} // namespace

namespace GeneralModule {

QString PictureFileOf(const QString& file, const QString& copy)
{
    return !copy.isEmpty() && QFileInfo::exists(copy) ? copy : file;
}

QString FindPictureFile(const QString& file)
{
    return PictureFileOf(file, LocalCopyOf(file));
}

QString ResolvePictureFile(const QString& file)
{
    const QString copy = LocalCopyOf(file);
    if (copy.isEmpty())
        return file;
    if (QFileInfo::exists(copy))
        return copy;
    if (!IsAlbumReadOnly()) {
        ImageSet->Edit();
        ImageSet->Set(u"SourceFile", QString());
        ImageSet->Update();
    }
    return file;
}

bool IsPictureThere(const QString& file, const QString& copy)
{
    return (!copy.isEmpty() && QFileInfo::exists(copy)) || QFileInfo::exists(file);
}

} // namespace GeneralModule
