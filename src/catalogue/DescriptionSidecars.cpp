// SPDX-License-Identifier: MIT
#include "catalogue/DescriptionSidecars.h"

#include "catalogue/PictureCards.h"
#include "core/AlbumPaths.h"
#include "platform/metadata/MetadataReader.h"
#include "platform/metadata/SidecarWriter.h"
#include "platform/text/QuotedText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

struct DescriptionSidecarsTexts
{
    Q_DECLARE_TR_FUNCTIONS(DescriptionSidecars)
};

// So many descriptions are in memory at once.
constexpr std::size_t batchSize = 500;

const QString legendField = QStringLiteral("Legend");
// What the caption was when the legend was written.
const QString captionField = QStringLiteral("Caption");

SidecarContent ContentOf(const DescribedPicture& picture)
{
    SidecarContent content{
        GeneralModule::AbsolutePath(picture.file), picture.record.legend, {}, {}};
    content.ownFields.insert(legendField, QuotedText(picture.record.legend));
    for (int column = 0; column < columnCount; ++column) {
        const QString& value = picture.record.values[std::size_t(column)];
        content.ownFields.insert(CarField(column), QuotedText(value.isEmpty() ? noValue : value));
        const bool isKeyword = !value.isEmpty() && value != noValue;
        if (isKeyword && !content.keywords.contains(value))
            content.keywords += value;
    }
    return content;
}

std::optional<QString> OwnText(const FileMetadata& metadata, const QString& name)
{
    const auto found = metadata.ownFields.find(name);
    return found == metadata.ownFields.end() ? std::nullopt : UnquotedText(*found);
}

} // namespace

struct SidecarExport::Batch
{
    explicit Batch(std::vector<DescribedPicture> all)
        : pictures(std::move(all)), writer(int(pictures.size()), [this](int number) {
              return ContentOf(pictures[std::size_t(number)]);
          })
    {
    }

    std::vector<DescribedPicture> pictures;
    SidecarWriter writer;
};

SidecarExport::SidecarExport() : ids_(AllPictureIds()) {}

SidecarExport::~SidecarExport() = default;

// Pictures that are not there get no sidecar: it would lie about where nobody looks for it.
bool SidecarExport::BeginBatch()
{
    std::vector<DescribedPicture> pictures;
    for (; next_ < ids_.size() && pictures.size() < batchSize; ++next_) {
        std::optional<DescribedPicture> picture = ReadDescription(ids_[next_]);
        if (picture && QFileInfo::exists(GeneralModule::AbsolutePath(picture->file))) {
            pictures.push_back(std::move(*picture));
            continue;
        }
        ++done_;
        if (picture)
            troubles_ += DescriptionSidecarsTexts::tr("%1: The picture is not there.")
                             .arg(QDir::toNativeSeparators(picture->file));
    }
    batch_ = pictures.empty() ? nullptr : std::make_unique<Batch>(std::move(pictures));
    return batch_ != nullptr;
}

void SidecarExport::Note(int number, const QString& trouble)
{
    ++done_;
    if (trouble.isEmpty())
        ++written_;
    else
        troubles_ += QDir::toNativeSeparators(batch_->pictures[std::size_t(number)].file) +
                     QStringLiteral(": ") + trouble;
}

bool SidecarExport::Work(std::chrono::milliseconds time)
{
    if (!batch_ && !BeginBatch())
        return false;
    const bool goesOn =
        batch_->writer.Work(time, [this](int number, const QString&, const QString& trouble) {
            Note(number, trouble);
        });
    if (!goesOn)
        batch_.reset();
    return goesOn || next_ < ids_.size();
}

SidecarImport::SidecarImport()
{
    VisitDescriptions([this](const DescribedPicture& picture) {
        files_ += picture.file;
        return true;
    });
    reader_ = std::make_unique<MetadataReader>(int(files_.size()), [this](int number) {
        return GeneralModule::AbsolutePath(files_[number]);
    });
}

SidecarImport::~SidecarImport() = default;

bool SidecarImport::Work(std::chrono::milliseconds time)
{
    return reader_->Work(time, [this](int number, const FileMetadata& metadata) {
        ++done_;
        const auto description = DescriptionFrom(files_[number], metadata);
        if (description)
            descriptions_.push_back(*description);
    });
}

std::optional<ImportedDescription> DescriptionFrom(const QString& file,
                                                   const FileMetadata& metadata)
{
    const std::optional<QString> legend = OwnText(metadata, legendField);
    if (!legend)
        return std::nullopt;
    ImportedDescription imported{file, legend, {}};
    if (metadata.sidecarCaption != metadata.ownFields.value(captionField))
        imported.legend = metadata.sidecarCaption;
    for (int column = 0; column < columnCount; ++column)
        imported.values[std::size_t(column)] = OwnText(metadata, CarField(column));
    return imported;
}
