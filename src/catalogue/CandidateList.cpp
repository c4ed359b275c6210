// SPDX-License-Identifier: MIT
#include "catalogue/CandidateList.h"

#include "platform/files/PathRoutines.h"
#include "platform/picture/PictureReader.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>
#include <QScopedValueRollback>

namespace {

constexpr QSize shownSize(160, 120); // logical pixels
constexpr qsizetype maxShown = 12;   // decoded at once, without a wait that one would notice

QString DescriptionOf(const QString& file)
{
    const QFileInfo info(file);
    const QLocale locale;
    return QStringLiteral("%1\n%2, %3")
        .arg(info.dir().dirName(), locale.formattedDataSize(info.size()),
             locale.toString(info.lastModified(), QLocale::ShortFormat));
}

std::vector<QImage> Decode(const QStringList& files, qreal pixelRatio)
{
    std::vector<PictureRequest> requests;
    for (const QString& file : files) {
        const QSize whole = ReadPictureInfo(file).size;
        const QSize room = shownSize * pixelRatio;
        requests.push_back(
            {file, whole.isEmpty() ? room : whole.scaled(room, Qt::KeepAspectRatio)});
    }
    return ReadPictures(requests);
}

} // namespace

CandidateList::CandidateList(QWidget* parent) : QListWidget(parent)
{
    setViewMode(IconMode);
    setFlow(LeftToRight);
    setWrapping(false);
    setMovement(Static);
    setResizeMode(Adjust);
    setIconSize(shownSize);
    setSpacing(6);
    setWordWrap(false);
    setTextElideMode(Qt::ElideMiddle);
    connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!isFilling_ && row >= 0)
            emit Chosen(row);
    });
}

void CandidateList::Show(const QStringList& files, int chosen)
{
    const QScopedValueRollback<bool> filling(isFilling_, true);
    clear();
    const QStringList shown = files.first(std::min(files.size(), maxShown));
    const std::vector<QImage> images = Decode(shown, devicePixelRatioF());
    for (qsizetype i = 0; i < shown.size(); ++i) {
        QPixmap picture = QPixmap::fromImage(images[std::size_t(i)]);
        picture.setDevicePixelRatio(devicePixelRatioF());
        auto* item = new QListWidgetItem(QIcon(picture), DescriptionOf(shown[i]), this);
        item->setToolTip(shown[i]);
    }
    setCurrentRow(chosen);
}
