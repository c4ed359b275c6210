// SPDX-License-Identifier: MIT
#include "Catalogue.h"

#include <QStringList>
#include <QtConcurrent>

namespace {

const int jpegQuality = 90;

QImage Painted(const SamplePicture& picture, Scene scene)
{
    Canvas canvas(picture.size, picture.fileName, MoodOf(picture.season, picture.light));
    if (!picture.person1.isEmpty()) {
        canvas.people.push_back({picture.person1, picture.activity1});
    }
    if (!picture.person2.isEmpty()) {
        canvas.people.push_back({picture.person2, picture.activity2});
    }
    scene(canvas);
    canvas.painter.end();
    FinishPicture(canvas.image, canvas.random);
    return canvas.image;
}

} // namespace

bool PaintSamplePicture(const SamplePicture& picture, const QString& folder)
{
    const Scene scene = SceneOf(picture.fileName);
    if (scene == nullptr) {
        return false;
    }
    const QImage image = Painted(picture, scene);
    const QString path = folder + QLatin1Char('/') + picture.fileName;
    const bool jpeg = picture.fileName.endsWith(QLatin1String(".jpg"));
    return image.save(path, nullptr, jpeg ? jpegQuality : -1);
}

QStringList PaintSamplePictures(const QString& folder)
{
    const std::vector<SamplePicture>& pictures = SamplePictures();
    const auto paint = [&folder](const SamplePicture& picture) {
        return PaintSamplePicture(picture, folder) ? QString() : picture.fileName;
    };
    QStringList missing = QtConcurrent::blockingMapped<QStringList>(pictures, paint);
    missing.removeAll(QString());
    return missing;
}
