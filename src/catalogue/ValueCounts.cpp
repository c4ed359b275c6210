// SPDX-License-Identifier: MIT
#include "catalogue/ValueCounts.h"

#include "catalogue/CharacteristicModel.h"
#include "core/AlbumSets.h"

namespace {

QStringList FieldsOf(int column)
{
    QStringList fields{CarField(column)};
    for (int other = 0; other < columnCount; ++other) {
        if (other != column && LabelledColumnOf(other) == LabelledColumnOf(column))
            fields += CarField(other);
    }
    return fields;
}

} // namespace

ValueCounts::ValueCounts(int column)
    : scan_(GeneralModule::AlbumDatabase, QStringLiteral("Image"), {}, FieldsOf(column)),
      hasTwin_(FieldsOf(column).size() > 1)
{
}

bool ValueCounts::Work(std::chrono::milliseconds time)
{
    const bool hasMore = scan_.Work(time, [this](const Statement& picture) {
        const std::string_view value = picture.GetUtf8(1);
        Count(value);
        if (hasTwin_ && picture.GetUtf8(2) != value)
            Count(picture.GetUtf8(2));
    });
    if (hasMore)
        return true;
    for (const auto& [value, count] : asWritten_)
        counts_[QString::fromStdString(value).toCaseFolded()] += count;
    asWritten_.clear();
    return false;
}

void ValueCounts::Count(std::string_view value)
{
    const auto held = asWritten_.find(value);
    if (held != asWritten_.end())
        ++held->second;
    else
        asWritten_.emplace(value, 1);
}
