// SPDX-License-Identifier: MIT
#include "story/ParagraphLinks.h"

#include "core/AlbumSets.h"
#include "core/TextRoutines.h"
#include "platform/data/WriteBatch.h"

using GeneralModule::AlbumDatabase;
using GeneralModule::LinkedImagesSet;

namespace {

QString LinksOf(qint32 paragraph)
{
    return QStringLiteral("[ParagraphId]=") + QString::number(paragraph);
}

} // namespace

bool IsLinked(qint32 paragraph, const QString& file)
{
    LinkedImagesSet->FindFirst(LinksOf(paragraph) + QStringLiteral(" AND [File]=") +
                               GeneralModule::Quoted(file));
    return !LinkedImagesSet->NoMatch();
}

QSet<QString> LinkedFiles(qint32 paragraph)
{
    QSet<QString> files;
    const RecordSet::Walk walk(*LinkedImagesSet);
    for (LinkedImagesSet->FindFirst(LinksOf(paragraph)); !LinkedImagesSet->NoMatch();
         LinkedImagesSet->FindNext(LinksOf(paragraph)))
        files.insert(LinkedImagesSet->TextOrEmpty(u"File"));
    return files;
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

void SetLinked(qint32 paragraph, const QStringList& files, bool linked)
{
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    for (const QString& file : files)
        SetLinked(paragraph, file, linked);
    batch.Finish();
}
