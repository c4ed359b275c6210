// SPDX-License-Identifier: MIT
#include "story/ParagraphLinks.h"

#include "core/AlbumSets.h"
#include "core/TextRoutines.h"
#include "core/UndoSteps.h"
#include "platform/data/WriteBatch.h"

#include <algorithm>

using GeneralModule::AlbumDatabase;
using GeneralModule::LinkedImagesSet;
using GeneralModule::UndoStep;

namespace {

QString LinksOf(qint32 paragraph)
{
    return QStringLiteral("[ParagraphId]=") + QString::number(paragraph);
}

// Rows come in the order in which they were added, and so do the pictures.
void AddLink(qint32 paragraph, const QString& file)
{
    LinkedImagesSet->AddNew();
    LinkedImagesSet->Set(u"ParagraphId", paragraph);
    LinkedImagesSet->Set(u"File", file);
    LinkedImagesSet->Update();
}

QStringList WithMoved(const QStringList& links, const QSet<QString>& files, const QString& before)
{
    QStringList moved;
    QStringList others;
    qsizetype place = -1;
    for (const QString& link : links) {
        if (link == before)
            place = others.size();
        (files.contains(link) ? moved : others) += link;
    }
    if (place < 0)
        place = others.size();
    return others.first(place) + moved + others.sliced(place);
}

QString NameOfLinking(int pictures, bool linked)
{
    return linked ? UndoStep::tr("Link %n Pictures", nullptr, pictures)
                  : UndoStep::tr("Unlink %n Pictures", nullptr, pictures);
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
    const QStringList links = LinksInOrder(paragraph);
    return {links.begin(), links.end()};
}

QStringList LinksInOrder(qint32 paragraph)
{
    QStringList links;
    const RecordSet::Walk walk(*LinkedImagesSet);
    for (LinkedImagesSet->FindFirst(LinksOf(paragraph)); !LinkedImagesSet->NoMatch();
         LinkedImagesSet->FindNext(LinksOf(paragraph)))
        links += LinkedImagesSet->TextOrEmpty(u"File");
    links.removeDuplicates();
    return links;
}

void SetLinked(qint32 paragraph, const QString& file, bool linked)
{
    const UndoStep step(NameOfLinking(1, linked));
    if (linked && !IsLinked(paragraph, file))
        AddLink(paragraph, file);
    // An album from elsewhere may hold the same link twice.
    while (!linked && IsLinked(paragraph, file))
        LinkedImagesSet->Delete();
}

void SetLinked(qint32 paragraph, const QStringList& files, bool linked)
{
    const QSet<QString> held = LinkedFiles(paragraph);
    const UndoStep step(NameOfLinking(int(files.size()), linked));
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    for (const QString& file : files) {
        if (held.contains(file) != linked)
            SetLinked(paragraph, file, linked);
    }
    batch.Finish();
}

void MoveLinks(qint32 paragraph, const QSet<QString>& files, const QString& before)
{
    const QStringList former = LinksInOrder(paragraph);
    const QStringList order = WithMoved(former, files, before);
    const UndoStep step(UndoStep::tr("Order Linked Pictures"));
    const auto [firstFormer, firstNew] = std::mismatch(former.begin(), former.end(), order.begin());
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    std::for_each(firstFormer, former.end(),
                  [&](const QString& file) { SetLinked(paragraph, file, false); });
    std::for_each(firstNew, order.end(), [&](const QString& file) { AddLink(paragraph, file); });
    batch.Finish();
}
