// SPDX-License-Identifier: MIT
#include "PictureTexts.h"
#include "platform/metadata/EntryText.h"
#include "platform/metadata/MetadataReader.h"
#include "platform/metadata/SidecarWriter.h"
#include "support/Rows.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using namespace MetadataStream;
using State = FileMetadata::State;

namespace {

QList<FileMetadata> Read(const QStringList& paths)
{
    QList<FileMetadata> all;
    MetadataReader reader(paths);
    while (reader.Work(std::chrono::milliseconds(50),
                       [&all](int, const FileMetadata& each) { all += each; }))
        ;
    return all;
}

QString Joined(const std::vector<FieldText>& texts)
{
    QStringList parts;
    for (const FieldText& text : texts)
        parts += text.text + '<' + text.field + '>';
    return parts.join(' ');
}

QString Joined(const std::vector<FieldDate>& dates)
{
    QStringList parts;
    for (const FieldDate& date : dates)
        parts += QString("%1-%2-%3<%4>")
                     .arg(date.date.year)
                     .arg(date.date.month)
                     .arg(date.date.day)
                     .arg(date.field);
    return parts.join(' ');
}

void SetTime(const QString& path, const QDateTime& time)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
}

// Writes one sidecar; returns why not.
QString WriteSidecar(const SidecarContent& content)
{
    QString result = "no answer";
    SidecarWriter writer(1, [&content](int) { return content; });
    while (
        writer.Work(std::chrono::milliseconds(50),
                    [&result](int, const QString&, const QString& trouble) { result = trouble; }))
        ;
    return result;
}

} // namespace

class TestMetadata : public QObject
{
    Q_OBJECT

private slots:
    void DecodesWhatPicturesHold()
    {
        const QList<std::tuple<Coding, QByteArray, QString>> rows{
            {Bytes, QByteArray("  caf\xC3\xA9 \0 tail", 14), "café"},
            {Bytes, "\x80 caf\xE9", "€ café"},
            {Utf16, QByteArray("\xC9\0t\0\0\0x\0", 8), "Ét"},
            {CommentLittleEndian, QByteArray("ASCII\0\0\0short", 13), "short"},
            {CommentLittleEndian, QByteArray("UNICODE\0\0a\0b", 12), "ab"},
            {CommentBigEndian, QByteArray("UNICODE\0a\0b\0", 12), "ab"},
            {CommentBigEndian, QByteArray("UNICODE\0\xFF\xFE\xE9\0", 12), "é"},
            {CommentBigEndian, QByteArray("UNICODE\0\x20\xAC", 10), "€"},
            {CommentBigEndian, QByteArray("\0\0\0\0\0\0\0\0caf\xE9", 12), "café"},
            {CommentBigEndian, "ab", "ab"},
            {CommentBigEndian, QByteArray("JIS\0\0\0\0\0\x46\x7C\x4B\x5C", 12), "日本"},
            {CommentBigEndian, QByteArray("JIS\0\0\0\0\0\x1B$B\x46\x7C\x1B(B!", 17), "日!"},
            {CommentBigEndian, QByteArray("JIS\0\0\0\0\0x", 9), ""}};
        for (const auto& [coding, bytes, text] : rows) {
            const InRow row(bytes.toHex());
            QCOMPARE(EntryText(coding, bytes), text);
        }
        for (const char* noise : {"OLYMPUS DIGITAL CAMERA", "SONY DSC", "binary comment"})
            QVERIFY(IsMachineCaption(noise));
        QVERIFY(!IsMachineCaption("My SONY DSC and I"));
    }

    void ReadsDates_data()
    {
        AddRows<QString, TakenDate>({"text", "date"},
                                    {{"EXIF", "1998:07:14 12:00:00", {1998, 7, 14}},
                                     {"XMP", "1998-07-14T12:00+02:00", {1998, 7, 14}},
                                     {"IPTC", "19980714", {1998, 7, 14}},
                                     {"month", "1998-07", {1998, 7, 0}},
                                     {"year", "1998", {1998, 0, 0}},
                                     {"year, rest 0", "1998:00:00", {1998, 0, 0}},
                                     {"no such day", "1998:02:30", {1998, 2, 0}},
                                     {"zeros", "0000:00:00 00:00:00", {}},
                                     {"blanks", "    :  :     :  :  ", {}},
                                     {"a number", "199807141", {}}});
    }

    void ReadsDates()
    {
        QFETCH(QString, text);
        QFETCH(TakenDate, date);
        QCOMPARE(DateFrom(text), date);
    }

    void TakesFieldsInTheirOrder()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("a.jpg");
        WritePicture(path, {.xmp = XmpCaption("von hier", "de") + XmpKeywords({"Lake", "Bob, Jr"}) +
                                   "<digiKam:TagsList><rdf:Seq><rdf:li>Place/Alps</rdf:li>"
                                   "</rdf:Seq></digiKam:TagsList>"
                                   "<photoshop:DateCreated>1998</photoshop:DateCreated>",
                            .iptc = {{120, "\xC9t\xE9"}, {25, "lake"}, {25, "Sea"}},
                            .exif = {{0x010E, QByteArray("SONY DSC\0", 9)},
                                     {0x9C9E, QByteArray("N\0e\0w\0;\0S\0e\0a\0\0\0", 16)},
                                     {0x9003, QByteArray("1999:02:03 00:00:00\0", 20)},
                                     {0x9286, QByteArray("ASCII\0\0\0noted", 13)}},
                            .comment = "said"});
        SetTime(path, QDateTime(QDate(2001, 5, 6), QTime(0, 1)));
        const FileMetadata read = Read({path}).value(0);
        QVERIFY(read.state == State::Read);
        QCOMPARE(Joined(read.captions),
                 "von hier<Xmp.dc.description> Été<Iptc.Application2.Caption> "
                 "noted<Exif.Photo.UserComment> said<JPEG comment>");
        QCOMPARE(Joined(read.keywords),
                 "Lake<Xmp.dc.subject> Bob, Jr<Xmp.dc.subject> Alps<Xmp.digiKam.TagsList> "
                 "Sea<Iptc.Application2.Keywords> New<Exif.Image.XPKeywords>");
        QCOMPARE(Joined(read.dates),
                 "1999-2-3<Exif.Photo.DateTimeOriginal> 1998-0-0<Xmp.photoshop.DateCreated> "
                 "2001-5-6<File time>");
    }

    void ReadsBothSidecarsAndPassesOverOthers()
    {
        const QTemporaryDir folder;
        const auto in = [&folder](const char* name) { return folder.filePath(name); };
        for (const char* name : {"a.jpg", "a.jpeg", "b.jpg"})
            WritePicture(in(name), {.xmp = XmpCaption("inside")});
        WriteFile(in("a.jpg.xmp"), XmpPacket(XmpCaption("own")));
        WriteFile(in("a.xmp"),
                  XmpPacket(XmpCaption("shared") + "<photoshop:SidecarForExtension>JPG"
                                                   "</photoshop:SidecarForExtension>"));
        WriteFile(in("b.xmp"), "<not xml");
        const QList<FileMetadata> read = Read({in("a.jpg"), in("a.jpeg"), in("b.jpg")});
        QCOMPARE(Joined(read[0].captions),
                 "own<Xmp.dc.description (.xmp)> shared<Xmp.dc.description (.xmp)> "
                 "inside<Xmp.dc.description>");
        QCOMPARE(Joined(read[1].captions), "inside<Xmp.dc.description>");
        QCOMPARE(Joined(read[2].captions), "inside<Xmp.dc.description>");
    }

    void AnswersForEveryKindOfFile()
    {
        const QTemporaryDir folder;
        const auto in = [&folder](const char* name) { return folder.filePath(name); };
        WritePicture(in("a.jpg"), {.xmp = XmpCaption("whole")});
        WriteFile(in("cut.jpg"), ReadFile(in("a.jpg")).left(100));
        WriteFile(in("text.jpg"), "a letter");
        QCOMPARE(mkfifo(QFile::encodeName(in("pipe.jpg")).constData(), 0600), 0);
        QList<State> states;
        for (const FileMetadata& each : Read({in("cut.jpg"), in("text.jpg"), in("pipe.jpg"),
                                              in("nowhere.jpg"), folder.path(), in("a.jpg")}))
            states += each.state;
        QCOMPARE(states, QList({State::Damaged, State::OtherFormat, State::OtherFormat,
                                State::NotThere, State::OtherFormat, State::Read}));
    }

    void KeepsWhatASidecarHolds()
    {
        const QTemporaryDir folder;
        const QString picture = folder.filePath("a.jpg");
        const QString shared = folder.filePath("a.xmp");
        WritePicture(picture, {});
        const QByteArray before = ReadFile(picture);
        WriteFile(shared, XmpPacket("<dc:description><rdf:Alt><rdf:li xml:lang=\"x-default\">old"
                                    "</rdf:li><rdf:li xml:lang=\"fr-FR\">vieux</rdf:li></rdf:Alt>"
                                    "</dc:description>" +
                                    XmpKeywords({"theirs", "Anna"}) +
                                    "<f:secret xmlns:f=\"http://f.example/\">kept</f:secret>"));
        SidecarContent content{picture, "lang=\"x\" new \x01<&>]]>", {"Anna", "Bob"}, {}};
        content.ownFields.insert("Legend", "\"x\"");
        QCOMPARE(WriteSidecar(content), "");
        QVERIFY(!QFile::exists(picture + ".xmp"));
        content.keywords = {"Eve"};
        content.ownFields["Legend"] = "\"y\"";
        QCOMPARE(WriteSidecar(content), "");
        for (const char* kept : {"vieux", ">kept<", "theirs"})
            QVERIFY2(ReadFile(shared).contains(kept) || ReadFile(shared).contains("\"kept\""),
                     kept);
        const FileMetadata read = Read({picture}).value(0);
        QCOMPARE(Joined(read.captions), "lang=\"x\" new  <&>]]><Xmp.dc.description (.xmp)>");
        QLocale::setDefault(QLocale::French);
        QCOMPARE(Joined(Read({picture}).value(0).captions),
                 "vieux<Xmp.dc.description/fr (.xmp)> " + Joined(read.captions));
        QLocale::setDefault(QLocale::c());
        QCOMPARE(Joined(read.keywords), "theirs<Xmp.dc.subject (.xmp)> Anna<Xmp.dc.subject (.xmp)> "
                                        "Eve<Xmp.dc.subject (.xmp)>");
        QCOMPARE(read.ownFields.value("Legend"), "\"y\"");
        QCOMPARE(read.sidecarCaption, read.ownFields.value("Caption"));
        QCOMPARE(ReadFile(picture), before);

        // Without a caption of its own another's stays, however often it is written.
        WriteFile(shared, XmpPacket(XmpCaption("theirs")));
        const QStringList captions{"", "", "mine", ""};
        const QStringList expected{"theirs", "theirs", "mine", ""};
        for (qsizetype i = 0; i < captions.size(); ++i) {
            content.caption = captions[i];
            QCOMPARE(WriteSidecar(content), "");
            const FileMetadata now = Read({picture}).value(0);
            QCOMPARE(now.sidecarCaption, expected[i]);
            QCOMPARE(now.ownFields.value("Caption"), now.sidecarCaption);
        }

        // A second picture of that name gets one of its own; one that cannot be read stays.
        const QString other = folder.filePath("a.png");
        WriteFile(other, before);
        content.picture = other;
        QCOMPARE(WriteSidecar(content), "");
        QVERIFY(ReadFile(other + ".xmp").contains("Eve"));
        WriteFile(picture + ".xmp", "<not xml");
        content.picture = picture;
        QVERIFY(!WriteSidecar(content).isEmpty());
        QCOMPARE(ReadFile(picture + ".xmp"), "<not xml");
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList({"a.jpg", "a.jpg.xmp", "a.png", "a.png.xmp", "a.xmp"}));
    }
};

QTEST_GUILESS_MAIN(TestMetadata)
#include "test_metadata.moc"
