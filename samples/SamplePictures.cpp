// SPDX-License-Identifier: MIT
#include "SamplePictures.h"

#include "Data.h"
#include "SceneReader.h"

#include <QStringList>
#include <QTextStream>
#include <QtConcurrent>

namespace {

const int jpegQuality = 90;

SamplePicture PictureOf(const QXmlStreamAttributes& attributes)
{
    const auto text = [&attributes](const char* name) {
        return attributes.value(QLatin1String(name)).toString();
    };
    return {.fileName = text("file"),
            .size = {text("width").toInt(), text("height").toInt()},
            .scene = text("scene"),
            .legend = text("legend"),
            .season = text("season"),
            .place = text("place"),
            .subject = text("subject"),
            .light = text("light"),
            .person1 = text("person1"),
            .activity1 = text("activity1"),
            .person2 = text("person2"),
            .activity2 = text("activity2")};
}

std::vector<SamplePicture> ReadPictures()
{
    std::vector<SamplePicture> pictures;
    ReadElements(QStringLiteral("pictures.xml"), [&pictures](const QXmlStreamReader& reader) {
        pictures.push_back(PictureOf(reader.attributes()));
    });
    return pictures;
}

QImage Painted(const SamplePicture& picture)
{
    Canvas canvas(picture.size, picture.fileName, MoodOf(picture.season, picture.light));
    if (!picture.person1.isEmpty()) {
        canvas.people.push_back({picture.person1, picture.activity1});
    }
    if (!picture.person2.isEmpty()) {
        canvas.people.push_back({picture.person2, picture.activity2});
    }
    PaintScene(canvas, picture.scene);
    canvas.painter.end();
    FinishPicture(canvas.image, canvas.random);
    return canvas.image;
}

} // namespace

const std::vector<SamplePicture>& SamplePictures()
{
    static const std::vector<SamplePicture> pictures = ReadPictures();
    return pictures;
}

bool PaintSamplePicture(const SamplePicture& picture, const QString& folder)
{
    const QString path = folder + QLatin1Char('/') + picture.fileName;
    const bool jpeg = picture.fileName.endsWith(QLatin1String(".jpg"));
    try {
        return Painted(picture).save(path, nullptr, jpeg ? jpegQuality : -1);
    } catch (const std::exception& error) {
        QTextStream(stderr) << picture.fileName << ": " << error.what() << '\n';
        return false;
    }
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
