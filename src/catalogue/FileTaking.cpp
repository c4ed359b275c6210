// SPDX-License-Identifier: MIT
#include "catalogue/FileTaking.h"

#include "core/LocalCopy.h"
#include "platform/metadata/MetadataReader.h"

#include <QHash>

namespace {

using Keywords = TakingChoices::Keywords;

// The columns whose tables hold a value, and how it is written there.
class HeldValues
{
public:
    HeldValues()
    {
        for (const int column : labelledColumns) {
            for (const QString& value : ValuesOf(column)) {
                if (!IsSpecialMarker(value))
                    held_[column].insert(value.toCaseFolded(), value);
            }
        }
    }

    // Empty when the column's table does not hold it.
    QString Find(int column, const QString& value) const
    {
        const auto table = held_.find(LabelledColumnOf(column));
        return table == held_.end() ? QString() : table->value(value.toCaseFolded());
    }

private:
    QHash<int, QHash<QString, QString>> held_;
};

// Takes what one file says into one picture's record.
class Taker
{
public:
    Taker(const TakingChoices& choices, const HeldValues& held, TakingPlan& plan)
        : choices_(choices), held_(held), plan_(plan)
    {
    }

    void Take(const FileMetadata& metadata, Picture& record)
    {
        if (choices_.takesCaptions && record.legend.trimmed().isEmpty())
            TakeCaption(metadata, record);
        if (choices_.keywords != Keywords::None)
            TakeKeywords(metadata, record);
        if (choices_.datePart != TakingChoices::DatePart::None)
            TakeDate(metadata, record);
    }

private:
    bool IsTaken(const QString& field) const { return !choices_.leftOut.contains(field); }

    static QString& ValueOf(Picture& record, int column)
    {
        return record.values[std::size_t(column)];
    }

    static bool IsFree(const Picture& record, int column)
    {
        const QString& value = record.values[std::size_t(column)];
        return value.isEmpty() || value == noValue;
    }

    void TakeCaption(const FileMetadata& metadata, Picture& record)
    {
        for (const FieldText& caption : metadata.captions) {
            if (!IsTaken(caption.field))
                continue;
            record.legend = caption.text;
            ++plan_.captionFields[caption.field];
            return;
        }
    }

    // The first column that offers the value and has none; -1 where there is none. A picture that
    // has the value already needs it nowhere else.
    int ColumnFor(const Picture& record, const QString& keyword, bool& isThere) const
    {
        int found = -1;
        for (int column = 0; column < columnCount; ++column) {
            const QString value = held_.Find(column, keyword);
            if (value.isEmpty())
                continue;
            isThere = isThere || record.values[std::size_t(column)] == value;
            if (found < 0 && IsFree(record, column))
                found = column;
        }
        return found;
    }

    bool TakeKeyword(const QString& keyword, Picture& record)
    {
        const QString value = CleanValue(NormalizedValue(keyword.simplified()));
        if (value.isEmpty() || value == noValue)
            return false;
        bool isThere = false;
        int column = choices_.keywordColumn;
        if (choices_.keywords == Keywords::WhereKnown)
            column = ColumnFor(record, value, isThere);
        if (isThere || column < 0 || !IsFree(record, column))
            return isThere;
        const QString held = held_.Find(column, value);
        ValueOf(record, column) = held.isEmpty() ? value : held;
        taken_ = true;
        return true;
    }

    void TakeKeywords(const FileMetadata& metadata, Picture& record)
    {
        QSet<QString> fields;
        for (const FieldText& keyword : metadata.keywords) {
            if (!IsTaken(keyword.field))
                continue;
            taken_ = false;
            if (!TakeKeyword(keyword.text, record))
                ++plan_.keywordsLeft;
            if (taken_ && !fields.contains(keyword.field)) {
                fields.insert(keyword.field);
                ++plan_.keywordFields[keyword.field];
            }
        }
    }

    void TakeDate(const FileMetadata& metadata, Picture& record)
    {
        if (!IsFree(record, choices_.dateColumn))
            return;
        for (const FieldDate& date : metadata.dates) {
            const QString value = DateValue(date.date, choices_.datePart);
            if (value.isEmpty() || !IsTaken(date.field))
                continue;
            ValueOf(record, choices_.dateColumn) = value;
            ++plan_.dateFields[date.field];
            return;
        }
    }

    const TakingChoices& choices_;
    const HeldValues& held_;
    TakingPlan& plan_;
    bool taken_ = false;
};

template<typename Texts>
void CountFields(const Texts& texts, std::map<QString, int>& counts)
{
    QSet<QString> fields;
    for (const auto& text : texts) {
        if (fields.contains(text.field))
            continue;
        fields.insert(text.field);
        ++counts[text.field];
    }
}

// One by one, or, where that would take longer, in one walk over the album.
std::vector<DescribedPicture> ReadAll(const std::vector<qint32>& ids)
{
    constexpr std::size_t fewEnough = 1000;
    std::vector<DescribedPicture> pictures;
    if (ids.size() <= fewEnough) {
        for (const qint32 id : ids) {
            if (const auto picture = ReadDescription(id))
                pictures.push_back(*picture);
        }
        return pictures;
    }
    const QSet<qint32> wanted(ids.begin(), ids.end());
    VisitDescriptions([&wanted, &pictures](const DescribedPicture& picture) {
        if (wanted.contains(picture.id))
            pictures.push_back(picture);
        return true;
    });
    return pictures;
}

} // namespace

FileTaking::FileTaking(const std::vector<qint32>& pictures) : pictures_(ReadAll(pictures))
{
    reader_ = std::make_unique<MetadataReader>(GetCount(), [this](int number) {
        const DescribedPicture& picture = pictures_[std::size_t(number)];
        return GeneralModule::PictureFileOf(picture.file, picture.copy);
    });
}

FileTaking::~FileTaking() = default;

bool FileTaking::Work(std::chrono::milliseconds time)
{
    return reader_->Work(time, [this](int, const FileMetadata& metadata) {
        unreadable_ += metadata.state == FileMetadata::State::Read ? 0 : 1;
        found_.push_back(metadata);
    });
}

TakingPlan FileTaking::Plan(const TakingChoices& choices) const
{
    const HeldValues held;
    TakingPlan plan;
    Taker taker(choices, held, plan);
    for (std::size_t i = 0; i < found_.size(); ++i) {
        Picture edited = pictures_[i].record;
        taker.Take(found_[i], edited);
        if (edited != pictures_[i].record)
            plan.changes.push_back(
                {pictures_[i].id, pictures_[i].file, pictures_[i].record, edited});
    }
    return plan;
}

TakingPlan FileTaking::Fields() const
{
    TakingPlan fields;
    for (const FileMetadata& metadata : found_) {
        CountFields(metadata.captions, fields.captionFields);
        CountFields(metadata.keywords, fields.keywordFields);
        CountFields(metadata.dates, fields.dateFields);
    }
    return fields;
}

QString DateValue(const TakenDate& date, TakingChoices::DatePart part)
{
    const auto twoDigits = [](int number) {
        return QStringLiteral("-%1").arg(number, 2, 10, QChar(u'0'));
    };
    const QString year = QString::number(date.year);
    switch (part) {
    case TakingChoices::DatePart::Year:
        return year;
    case TakingChoices::DatePart::Month:
        return date.month == 0 ? QString() : year + twoDigits(date.month);
    case TakingChoices::DatePart::Day:
        return date.day == 0 ? QString() : year + twoDigits(date.month) + twoDigits(date.day);
    case TakingChoices::DatePart::None:
        break;
    }
    return {};
}
