// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/DescriptionChanges.h"
#include "platform/metadata/FileMetadata.h"

#include <QSet>

#include <chrono>
#include <map>
#include <memory>

class MetadataReader;

// Takes captions, keywords and dates out of picture files into the album. Nothing is written before
// the user has seen what would change.

// What the user wants.
struct TakingChoices
{
    enum class Keywords { None, WhereKnown, IntoColumn };
    enum class DatePart { None, Year, Month, Day };

    bool takesCaptions = true; // only to empty legends
    Keywords keywords = Keywords::WhereKnown;
    int keywordColumn = 0; // of IntoColumn
    DatePart datePart = DatePart::None;
    int dateColumn = 0;
    QSet<QString> leftOut; // fields, as FieldText names them
};

// What would be taken.
struct TakingPlan
{
    std::vector<DescriptionChange> changes;
    // Of how many pictures the legend, a value or the date comes from a field.
    std::map<QString, int> captionFields;
    std::map<QString, int> keywordFields;
    std::map<QString, int> dateFields;
    int keywordsLeft = 0; // that fit no characteristic, or one that has a value already
};

// Reads the files of pictures in slices, and plans what to take of them.
class FileTaking
{
public:
    // Throws DatabaseError, NoAlbum while no album is open.
    explicit FileTaking(const std::vector<qint32>& pictures);
    ~FileTaking();
    Q_DISABLE_COPY_MOVE(FileTaking)

    int GetCount() const { return int(pictures_.size()); }
    int GetRead() const { return int(found_.size()); }
    // Of those read, how many could not be read to their end.
    int GetUnreadable() const { return unreadable_; }

    // Reads for about that time; false when all are read. Throws DatabaseError.
    bool Work(std::chrono::milliseconds time);

    // What would be taken of the files read so far. A characteristic that has a value keeps it.
    // Throws DatabaseError.
    TakingPlan Plan(const TakingChoices& choices) const;
    // All fields that hold something, by kind, each with the number of pictures.
    TakingPlan Fields() const;

private:
    std::vector<DescribedPicture> pictures_;
    std::vector<FileMetadata> found_;
    std::unique_ptr<MetadataReader> reader_;
    int unreadable_ = 0;
};

// "1998", "1998-07" or "1998-07-14"; empty where the date does not say so much.
QString DateValue(const TakenDate& date, TakingChoices::DatePart part);
