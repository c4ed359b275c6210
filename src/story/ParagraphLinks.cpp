// SPDX-License-Identifier: MIT
#include "story/ParagraphLinks.h"

#include "core/AlbumSets.h"
#include "core/TextRoutines.h"

using GeneralModule::LinkedImagesSet;

bool IsLinked(qint32 paragraph, const QString& file)
{
    LinkedImagesSet->FindFirst(QStringLiteral("[ParagraphId]=") + QString::number(paragraph) +
                               QStringLiteral(" AND [File]=") + GeneralModule::Quoted(file));
    return !LinkedImagesSet->NoMatch();
}

void SetLinked(qint32 paragraph, const QString& file, bool linked)
{
    if (linked && !IsLinked(paragraph, file)) {
        LinkedImagesSet->AddNew();
        LinkedImagesSet->Set(u"ParagraphId", paragraph);
        LinkedImagesSet->Set(u"File", file);
        LinkedImagesSet->Update();
    }
    // An album from elsewhere may hold the same link twice.
    while (!linked && IsLinked(paragraph, file))
        LinkedImagesSet->Delete();
}
