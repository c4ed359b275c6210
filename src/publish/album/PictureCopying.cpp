// SPDX-License-Identifier: MIT
#include "publish/album/PictureCopying.h"

#include "platform/picture/OpenPicture.h"
#include "platform/picture/PictureFile.h"
#include "publish/PublishReport.h"
#include "publish/WorkAside.h"
#include "publish/album/WriteBehind.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <cerrno>

namespace {

constexpr int jpegQuality = 90;
constexpr qint64 bytesAtOnce = 1 << 20; // between two looks at the user
const QString jpegEnding = QStringLiteral(".jpg");
const QString pngEnding = QStringLiteral(".png");

struct CopyTexts
{
    Q_DECLARE_TR_FUNCTIONS(PictureCopying)
};

[[noreturn]] void ThrowNotCopied(const QString& source, const QFile& copy)
{
    // Of a disk that takes only the beginning of a block, files say nothing.
    const bool isTold = copy.errorString() != QFile().errorString();
    const QString reason = isTold ? copy.errorString() : qt_error_string(ENOSPC);
    throw PublishError(CopyTexts::tr("The picture \"%1\" cannot be copied: %2")
                           .arg(QDir::toNativeSeparators(source), reason));
}

QString WithEnding(const QString& name, const QString& ending)
{
    const bool isJpeg =
        ending == jpegEnding && name.endsWith(QLatin1String(".jpeg"), Qt::CaseInsensitive);
    return isJpeg || name.endsWith(ending, Qt::CaseInsensitive) ? name : name + ending;
}

bool IsJpegFile(const QString& path)
{
    QFile file;
    return OpenPictureFile(file, path) && PictureFormatOf(file) == "jpeg";
}

bool IsTransparent(const QImage& image)
{
    if (!image.hasAlphaChannel())
        return false;
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < pixels.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
        if (std::any_of(line, line + pixels.width(),
                        [](QRgb pixel) { return qAlpha(pixel) < 255; }))
            return true;
    }
    return false;
}

// One picture.
class Copying
{
public:
    Copying(const PictureToCopy& picture, int longestEdge, PublishFolder& folder, WriteBehind& disk,
            const std::function<bool()>& isStopped)
        : picture_(picture), edge_(longestEdge), folder_(folder), disk_(disk), isStopped_(isStopped)
    {
    }

    CopiedPicture Run()
    {
        const QFileInfo source(picture_.source);
        if (!source.isFile())
            return {CopyResult::Missing, picture_.name};
        time_ = source.lastModified();
        madeFrom_ = picture_.source + u'|' + QString::number(source.size()) + u'|' +
                    QString::number(time_.toMSecsSinceEpoch());
        OpenPicture opened(picture_.source, [this] { return !isStopped_(); });
        const QSize size = opened.Size();
        if (edge_ > 0 && std::max(size.width(), size.height()) > edge_)
            return Scale(opened, size.scaled(edge_, edge_, Qt::KeepAspectRatio));
        return CopyBytes(size.isEmpty());
    }

private:
    CopiedPicture Scale(OpenPicture& opened, QSize size)
    {
        const QString from = madeFrom_ + u'|' + QString::number(edge_);
        const bool isJpeg = IsJpegFile(picture_.source);
        const QString jpegName = isJpeg ? picture_.name : WithEnding(picture_.name, jpegEnding);
        const QString pngName = WithEnding(picture_.name, pngEnding);
        if (folder_.Keeps(jpegName, from))
            return {CopyResult::Kept, jpegName};
        if (!isJpeg && folder_.Keeps(pngName, from))
            return {CopyResult::Kept, pngName};
        QImage image = Decoded(opened, size.expandedTo({1, 1}));
        if (isStopped_())
            return {};
        if (image.isNull())
            return CopyBytes(true);
        const bool isPng = IsTransparent(image);
        if (!isPng)
            image.convertTo(QImage::Format_RGB32);
        const QString name = isPng ? pngName : jpegName;
        QFile file(folder_.PathFor(name, from));
        QImageWriter writer(&file, isPng ? "png" : "jpeg");
        writer.setQuality(isPng ? -1 : jpegQuality);
        if (!file.open(QIODevice::WriteOnly) || !writer.write(image) || !file.flush())
            ThrowNotCopied(picture_.source, file);
        Finish(file);
        return {CopyResult::Copied, name};
    }

    static QImage Decoded(OpenPicture& opened, QSize size)
    {
        try {
            return opened.Read(size);
        } catch (const std::bad_alloc&) { // as good as damaged
            return {};
        }
    }

    CopiedPicture CopyBytes(bool isDamaged)
    {
        if (folder_.Keeps(picture_.name, madeFrom_))
            return {CopyResult::Kept, picture_.name, isDamaged};
        QFile source(picture_.source);
        if (!source.open(QIODevice::ReadOnly))
            return {CopyResult::Unreadable, picture_.name};
        QFile file(folder_.PathFor(picture_.name, madeFrom_));
        if (!file.open(QIODevice::WriteOnly))
            ThrowNotCopied(picture_.source, file);
        while (!isStopped_() && !source.atEnd()) {
            const QByteArray block = source.read(bytesAtOnce);
            if (block.isEmpty()) {
                file.remove();
                return {CopyResult::Unreadable, picture_.name};
            }
            if (file.write(block) != block.size())
                ThrowNotCopied(picture_.source, file);
            disk_.Continue(file);
        }
        if (!file.flush())
            ThrowNotCopied(picture_.source, file);
        Finish(file);
        return {CopyResult::Copied, picture_.name, isDamaged};
    }

    void Finish(QFile& file)
    {
        file.setFileTime(time_, QFileDevice::FileModificationTime);
        disk_.Take(file);
        file.close();
    }

    const PictureToCopy& picture_;
    int edge_;
    PublishFolder& folder_;
    WriteBehind& disk_;
    const std::function<bool()>& isStopped_;
    QString madeFrom_;
    QDateTime time_;
};

} // namespace

std::optional<std::vector<CopiedPicture>> CopyPictures(const std::vector<PictureToCopy>& pictures,
                                                       int longestEdge, PublishFolder& folder,
                                                       const PublishProgress& progress)
{
    std::vector<CopiedPicture> copied(pictures.size());
    std::atomic<std::size_t> next = 0;
    std::atomic<int> done = 0;
    const auto copyUntilNoneIsLeft = [&](const std::function<bool()>& isStopped) {
        WriteBehind disk;
        for (std::size_t i = next++; i < pictures.size() && !isStopped(); i = next++) {
            copied[i] = Copying(pictures[i], longestEdge, folder, disk, isStopped).Run();
            ++done;
        }
    };
    const int threads = std::min<int>(QThread::idealThreadCount(), int(pictures.size()));
    if (!WorkAside(threads, copyUntilNoneIsLeft,
                   [&] { return progress(done, int(pictures.size())); }))
        return {};
    return copied;
}
