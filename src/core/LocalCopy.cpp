// SPDX-License-Identifier: MIT
#include "core/LocalCopy.h"

#include "core/Album.h"
#include "core/AlbumSets.h"
#include "core/TextRoutines.h"

#include <QFileInfo>

namespace GeneralModule {

QString ResolvePictureFile(const QString& file)
{
    ImageSet->FindFirst(QStringLiteral("[File]=") + Quoted(file));
    const QString copy = ImageSet->NoMatch() ? QString() : ImageSet->TextOrEmpty(u"SourceFile");
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

} // namespace GeneralModule
