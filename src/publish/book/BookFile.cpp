// SPDX-License-Identifier: MIT
#include "publish/book/BookFile.h"

#include "publish/book/BookAppending.h"
#include "publish/book/BookDecoding.h"
#include "publish/book/BookOutlines.h"
#include "publish/book/BookTextMaps.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include <QCryptographicHash>

#include <algorithm>

namespace {

using Object = QPDFObjectHandle;

// From the unit square, in which a PDF file draws a picture from its lower left corner, to the
// picture's place on the page (ISO 32000-1, 8.9.5), with the turn that its file asks for.
QTransform MatrixOf(const QRectF& place, qreal paperHeight, QImageIOHandler::Transformations turn)
{
    QTransform matrix;
    if (turn & QImageIOHandler::TransformationMirror)
        matrix *= QTransform(-1, 0, 0, 1, 1, 0);
    if (turn & QImageIOHandler::TransformationFlip)
        matrix *= QTransform(1, 0, 0, -1, 0, 1);
    if (turn & QImageIOHandler::TransformationRotate90)
        matrix *= QTransform(0, -1, 1, 0, 0, 1);
    return matrix * QTransform(place.width(), 0, 0, place.height(), place.left(),
                               paperHeight - place.bottom());
}

std::string PictureName(int picture)
{
    return "/Picture" + std::to_string(picture);
}

QByteArray DigestOf(const PublishedStory& story)
{
    QCryptographicHash hash(QCryptographicHash::Md5);
    hash.addData(story.title.toUtf8());
    for (const PublishedChapter& chapter : story.chapters) {
        hash.addData(chapter.title.toUtf8());
        for (const PublishedParagraph& paragraph : chapter.paragraphs) {
            hash.addData(paragraph.text.toUtf8());
            for (const PublishedPicture& picture : paragraph.pictures)
                hash.addData(picture.file.toUtf8());
        }
    }
    return hash.result();
}

class BookWriting
{
public:
    BookWriting(const PublishedStory& story, PaintedBook painted, const LaidOutBook& laidOut,
                BookPictures& pictures, int resolution, BookProgress& progress)
        : story_(story),
          painted_(std::move(painted)),
          laidOut_(laidOut),
          pictures_(pictures),
          progress_(progress),
          order_(OrderOfPictures()),
          decoding_(pictures, order_, resolution, progress)
    {
        pdf_.setSuppressWarnings(true);
        pdf_.setAttemptRecovery(false);
        pdf_.processMemoryFile("book", painted_.pdf.constData(), std::size_t(painted_.pdf.size()));
    }

    BookFacts Write(const QString& path)
    {
        MoveContents();
        for (const int picture : order_) {
            progress_.Check();
            AddStandIn(picture);
        }
        for (std::size_t page = 0; page < pages_.size(); ++page) {
            progress_.Check();
            AddPictures(page);
        }
        AddBookOutlines(pdf_, pages_, painted_.paper.height(), story_, laidOut_.chapters,
                        painted_.links);
        MendTextMaps(pdf_);
        SetTitle();
        const QByteArray base = WriteBase();
        BookOutput output(path, progress_);
        BookAppending appending(output, base);
        for (int picture = 0; picture < pictures_.Count(); ++picture) {
            if (!pictures_.At(picture).IsGood())
                progress_.Add(pictures_.At(picture).uses);
        }
        for (const int picture : order_)
            AppendPicture(output, appending, picture);
        appending.Finish();
        output.Close();
        facts_.bytes = output.Count();
        facts_.chapters = int(story_.chapters.size());
        return std::move(facts_);
    }

private:
    // In which the writer comes to them.
    std::vector<int> OrderOfPictures()
    {
        MovePages(painted_.pictures);
        MovePages(painted_.links);
        std::vector<int> order;
        std::vector<bool> isKnown(std::size_t(pictures_.Count()), false);
        for (const std::vector<BookPage::Picture>& page : painted_.pictures) {
            for (const BookPage::Picture& each : page) {
                if (!isKnown[std::size_t(each.picture)])
                    order.push_back(each.picture);
                isKnown[std::size_t(each.picture)] = true;
            }
        }
        return order;
    }

    // From the end to where they belong, after the title page.
    template<typename Page>
    void MovePages(std::vector<Page>& pages) const
    {
        std::rotate(pages.begin() + 1, pages.end() - laidOut_.contentsPages, pages.end());
    }

    void MoveContents()
    {
        Object kids = pdf_.getRoot().getKey("/Pages").getKey("/Kids");
        pages_ = kids.getArrayAsVector();
        MovePages(pages_);
        kids.setArrayFromVector(pages_);
    }

    // Has the place and the colours of the picture, which comes after all else.
    void AddStandIn(int picture)
    {
        Object stream = Object::newStream(&pdf_, "-");
        stream.getDict().replaceKey("/ColorSpace", SpaceOf(picture));
        streams_.emplace(picture, stream);
    }

    Object SpaceOf(int picture)
    {
        const std::optional<JpegFacts>& jpeg = pictures_.At(picture).jpeg;
        if (!decoding_.GetEncoding(picture).isPassed)
            return Object::newName("/DeviceRGB");
        if (!jpeg->profile.isEmpty())
            return ProfileSpace(jpeg->profile);
        return Object::newName(jpeg->components == 1 ? "/DeviceGray" : "/DeviceRGB");
    }

    // The many pictures of one camera share their profile.
    Object ProfileSpace(const QByteArray& profile)
    {
        Object& space = profiles_[profile];
        if (!space.isArray()) {
            Object stream = Object::newStream(&pdf_, profile.toStdString());
            stream.getDict().replaceKey("/N", Object::newInteger(3));
            space =
                pdf_.makeIndirectObject(Object::newArray({Object::newName("/ICCBased"), stream}));
        }
        return space;
    }

    void AppendPicture(BookOutput& output, BookAppending& appending, int picture)
    {
        const BookEncoding& encoding = decoding_.GetEncoding(picture);
        const BookAppending::Place place =
            appending.Add({numbers_.at(picture), encoding.size, spaces_.at(picture)}, [&] {
                const qint64 begin = output.Count();
                if (encoding.isPassed && Pass(output, picture))
                    return;
                output.CutTo(begin);
                const BookDecoding::Result result = decoding_.Take(picture);
                if (result.isDamaged)
                    pictures_.At(picture).state = BookPictureState::Damaged;
                output.Write(result.jpeg);
            });
        facts_.pictures[PictureName(picture)] = {encoding.size, place.at, place.bytes};
        progress_.Add(pictures_.At(picture).uses);
    }

    bool Pass(BookOutput& output, int picture)
    {
        const BookPicture& passed = pictures_.At(picture);
        return PassJpeg(passed.path, *passed.jpeg, [this, &output](QByteArrayView bytes) {
            progress_.Check();
            output.Write(bytes);
        });
    }

    // Below the texts, so as the page's first contents.
    void AddPictures(std::size_t page)
    {
        const std::vector<BookPage::Picture>& pictures = painted_.pictures[page];
        facts_.pages.emplace_back();
        if (pictures.empty())
            return;
        Object resources = pages_[page].getKey("/Resources");
        Object named = resources.getKey("/XObject");
        named = named.isDictionary() ? named.shallowCopy() : Object::newDictionary();
        QByteArray drawing;
        for (const BookPage::Picture& each : pictures) {
            const BookEncoding& encoding = decoding_.GetEncoding(each.picture);
            const QTransform matrix =
                MatrixOf(each.place, painted_.paper.height(),
                         encoding.isPassed ? pictures_.At(each.picture).jpeg->turn
                                           : QImageIOHandler::TransformationNone);
            drawing += 'q';
            for (const qreal number :
                 {matrix.m11(), matrix.m12(), matrix.m21(), matrix.m22(), matrix.dx(), matrix.dy()})
                drawing += ' ' + QByteArray::number(number, 'f', 3);
            drawing += " cm " + QByteArray::fromStdString(PictureName(each.picture)) + " Do Q\n";
            named.replaceKey(PictureName(each.picture), streams_.at(each.picture));
            facts_.pages.back().insert(PictureName(each.picture));
        }
        resources.replaceKey("/XObject", named);
        pages_[page].replaceKey("/Contents",
                                Object::newArray({Object::newStream(&pdf_, drawing.toStdString()),
                                                  pages_[page].getKey("/Contents")}));
    }

    void SetTitle()
    {
        const std::string title = story_.title.simplified().toStdString();
        Object root = pdf_.getRoot();
        Object preferences = Object::newDictionary();
        preferences.replaceKey("/DisplayDocTitle", Object::newBool(true));
        if (story_.IsRightToLeft())
            preferences.replaceKey("/Direction", Object::newName("/R2L"));
        root.replaceKey("/ViewerPreferences", preferences);
        root.replaceKey("/Lang",
                        Object::newUnicodeString(story_.language.bcp47Name().toStdString()));
        Object information = Object::newDictionary();
        information.replaceKey("/Title", Object::newUnicodeString(title));
        information.replaceKey("/Creator", Object::newString("Lumenark"));
        Object trailer = pdf_.getTrailer();
        trailer.replaceKey("/Info", pdf_.makeIndirectObject(information));
        // The same story gives the same book, whenever it is made.
        const Object identifier = Object::newString(DigestOf(story_).toStdString());
        trailer.replaceKey("/ID", Object::newArray({identifier, identifier}));
    }

    // All but the pictures, with the numbers that their objects have in it.
    QByteArray WriteBase()
    {
        QPDFWriter writer(pdf_);
        writer.setOutputMemory();
        writer.setDecodeLevel(qpdf_dl_none);
        writer.setObjectStreamMode(qpdf_o_generate);
        writer.setStaticID(true); // takes the first part from the trailer, and no time
        writer.write();
        for (const auto& [picture, stream] : streams_) {
            numbers_[picture] = writer.getRenumberedObjGen(stream.getObjGen()).getObj();
            Object space = Object(stream).getDict().getKey("/ColorSpace");
            spaces_[picture] =
                space.isName()
                    ? QByteArray::fromStdString(space.getName())
                    : QByteArray::number(writer.getRenumberedObjGen(space.getObjGen()).getObj()) +
                          " 0 R";
        }
        const auto buffer = writer.getBufferSharedPointer();
        return {reinterpret_cast<const char*>(buffer->getBuffer()), qsizetype(buffer->getSize())};
    }

    const PublishedStory& story_;
    PaintedBook painted_;
    const LaidOutBook& laidOut_;
    BookPictures& pictures_;
    BookProgress& progress_;
    std::vector<int> order_;
    BookDecoding decoding_;
    QPDF pdf_;
    std::vector<Object> pages_;
    std::map<int, Object> streams_;
    std::map<int, int> numbers_;       // of the streams' objects in the file
    std::map<int, QByteArray> spaces_; // their colours, as the file names them
    std::map<QByteArray, Object> profiles_;
    BookFacts facts_;
};

} // namespace

BookFacts WriteBookFile(const QString& path, const PublishedStory& story, PaintedBook painted,
                        const LaidOutBook& laidOut, BookPictures& pictures, int resolution,
                        BookProgress& progress)
{
    return BookWriting(story, std::move(painted), laidOut, pictures, resolution, progress)
        .Write(path);
}
