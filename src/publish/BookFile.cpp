// SPDX-License-Identifier: MIT
#include "publish/BookFile.h"

#include "publish/BookDecoding.h"
#include "publish/BookOutlines.h"
#include "publish/BookOutput.h"
#include "publish/BookTextMaps.h"

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
            AddStream(picture);
        }
        for (std::size_t page = 0; page < pages_.size(); ++page) {
            progress_.Check();
            AddPictures(page);
        }
        AddBookOutlines(pdf_, pages_, painted_.paper.height(), story_, laidOut_.chapters,
                        painted_.links);
        MendTextMaps(pdf_);
        SetTitle();
        BookOutput output(path, progress_);
        try {
            WriteTo(output);
        } catch (const std::runtime_error&) {
            if (output.GetFailure().isEmpty())
                throw;
            throw PublishError(output.GetFailure());
        }
        facts_.bytes = output.CountBytes();
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

    void AddStream(int picture)
    {
        const BookEncoding& encoding = decoding_.GetEncoding(picture);
        const std::optional<JpegFacts>& jpeg = pictures_.At(picture).jpeg;
        const bool isGray = encoding.isPassed && jpeg->components == 1;
        Object stream = Object::newStream(&pdf_);
        Object dictionary = stream.getDict();
        dictionary.replaceKey("/Type", Object::newName("/XObject"));
        dictionary.replaceKey("/Subtype", Object::newName("/Image"));
        dictionary.replaceKey("/Width", Object::newInteger(encoding.size.width()));
        dictionary.replaceKey("/Height", Object::newInteger(encoding.size.height()));
        dictionary.replaceKey("/BitsPerComponent", Object::newInteger(8));
        dictionary.replaceKey("/ColorSpace",
                              encoding.isPassed && !jpeg->profile.isEmpty()
                                  ? ProfileSpace(jpeg->profile)
                                  : Object::newName(isGray ? "/DeviceGray" : "/DeviceRGB"));
        stream.replaceStreamData(
            [this, picture](Pipeline* pipeline) { Provide(picture, pipeline); },
            Object::newName("/DCTDecode"), Object::newNull());
        streams_.emplace(picture, stream);
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

    // The library calls this once for each picture while it writes, so that only a few are in
    // memory.
    void Provide(int picture, Pipeline* pipeline)
    {
        const BookDecoding::Result result = decoding_.Take(picture);
        if (result.isDamaged)
            pictures_.At(picture).state = BookPictureState::Damaged;
        const auto* data = reinterpret_cast<const unsigned char*>(result.jpeg.constData());
        pipeline->write(data, std::size_t(result.jpeg.size()));
        pipeline->finish();
        facts_.pictures[PictureName(picture)] = {decoding_.GetEncoding(picture).size,
                                                 result.jpeg.size()};
        progress_.Add(pictures_.At(picture).uses);
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
        const std::string title = story_.title.toStdString();
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
        const QByteArray digest = QCryptographicHash::hash(painted_.pdf, QCryptographicHash::Md5);
        const Object identifier = Object::newString(digest.toStdString());
        trailer.replaceKey("/ID", Object::newArray({identifier, identifier}));
    }

    void WriteTo(BookOutput& output)
    {
        QPDFWriter writer(pdf_);
        writer.setOutputPipeline(&output);
        writer.setStreamDataMode(qpdf_s_preserve);
        writer.setStaticID(true); // takes the first part from the trailer, and no time
        writer.setMinimumPDFVersion("1.5");
        writer.write();
        output.Close();
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
