// SPDX-License-Identifier: MIT
#include "catalogue/Picture.h"

#include "core/AlbumPaths.h"
#include "core/AlbumSets.h"
#include "core/EditConflict.h"
#include "core/TextRoutines.h"
#include "core/UndoSteps.h"
#include "platform/data/WriteBatch.h"
#include "platform/files/PathRoutines.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using GeneralModule::AlbumDatabase;
using GeneralModule::ImageSet;
using GeneralModule::MergeEdit;
using GeneralModule::Quoted;
using GeneralModule::StepAbout;
using GeneralModule::UndoStep;

namespace {

QString HeldSpelling(int column, const QString& value)
{
    RecordSet table(AlbumDatabase, ValueTableOf(column));
    table.FindFirst(QStringLiteral("[Name] = ") + Quoted(value));
    return table.NoMatch() ? QString() : table.TextOrEmpty(u"Name");
}

bool FindPicture(const QString& file)
{
    ImageSet->FindFirst(QStringLiteral("[File]=") + Quoted(file));
    return !ImageSet->NoMatch();
}

// False where there is no trash for the file. A folder of that name is no picture.
bool PutIntoTrash(const QString& path)
{
    if (!QFileInfo(path).isFile())
        return false;
    // The user's trash lies in this folder, which a new user does not have yet.
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    return QFile::moveToTrash(path);
}

// Why the file could not be deleted; empty when it is gone.
QString DeleteFile(const QString& path)
{
    if (PutIntoTrash(path))
        return {};
    QFile file(path);
    if (file.remove() || !QFileInfo::exists(path))
        return {};
    return QCoreApplication::translate("Picture", "The file '%1' cannot be deleted: %2")
        .arg(QDir::toNativeSeparators(path), file.errorString());
}

} // namespace

bool HasPictures()
{
    return !ImageSet->IsEmpty();
}

qint64 CountPictures()
{
    return ImageSet->RecordCount();
}

std::optional<Picture> ReadPicture(const QString& file)
{
    if (!FindPicture(file))
        return std::nullopt;
    Picture record;
    for (int column = 0; column < columnCount; ++column)
        record.values[std::size_t(column)] = ImageSet->TextOrEmpty(CarField(column));
    record.legend = ImageSet->TextOrEmpty(u"Legend");
    return record;
}

Picture MergePicture(const Picture& shown, const Picture& edited, const Picture& stored,
                     bool prefersEdited)
{
    Picture merged{MergeEdit(shown.legend, edited.legend, stored.legend, prefersEdited), {}};
    for (std::size_t column = 0; column < columnCount; ++column)
        merged.values[column] = MergeEdit(shown.values[column], edited.values[column],
                                          stored.values[column], prefersEdited);
    return merged;
}

bool HasConflict(const Picture& shown, const Picture& edited, const Picture& stored)
{
    return MergePicture(shown, edited, stored, true) != MergePicture(shown, edited, stored, false);
}

QString DescribePicture(const Picture& record)
{
    QStringList parts{record.legend};
    parts.append(QStringList(record.values.begin(), record.values.end()));
    parts.removeAll(QString());
    parts.removeAll(noValue);
    return parts.join(QStringLiteral(", "));
}

QString StoreValue(int column, const QString& typed)
{
    if (typed.isEmpty())
        return noValue;
    // Looked up unchanged first: a marker may be chosen, though not typed.
    QString held = HeldSpelling(column, typed);
    if (!held.isEmpty())
        return held;
    const QString value = CleanValue(NormalizedValue(typed));
    if (value.isEmpty() || value == noValue)
        return noValue;
    held = HeldSpelling(column, value);
    return held.isEmpty() ? AddValueToTable(column, value) : held;
}

Picture StorePicture(const QString& file, const Picture& shown, const Picture& edited)
{
    Picture saved = edited;
    for (QString& value : saved.values) {
        if (value.isEmpty())
            value = noValue;
    }
    if (saved == shown || !FindPicture(file))
        return saved;
    const UndoStep step(StepAbout(UndoStep::tr("Describe"), FileNameOf(file)));
    WriteBatch batch(AlbumDatabase);
    for (int column = 0; column < columnCount; ++column) {
        QString& value = saved.values[std::size_t(column)];
        if (value != shown.values[std::size_t(column)])
            value = StoreValue(column, value);
    }
    ImageSet->Edit();
    for (int column = 0; column < columnCount; ++column) {
        const QString& value = saved.values[std::size_t(column)];
        if (value != shown.values[std::size_t(column)])
            ImageSet->Set(CarField(column), value);
    }
    if (saved.legend != shown.legend)
        ImageSet->Set(u"Legend", saved.legend);
    ImageSet->Update();
    batch.Finish();
    return ReadPicture(file).value_or(saved);
}

QString TakeOutPicture(const QString& file, bool deleteFile)
{
    const UndoStep step(StepAbout(UndoStep::tr("Take out"), FileNameOf(file)));
    // Begins before the file is deleted: this fails if the album cannot be changed.
    WriteBatch batch(AlbumDatabase);
    const QString trouble = deleteFile ? DeleteFile(GeneralModule::AbsolutePath(file)) : QString();
    if (trouble.isEmpty() && FindPicture(file))
        ImageSet->Delete();
    batch.Finish();
    return trouble;
}
