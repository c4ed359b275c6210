// SPDX-License-Identifier: MIT
#include "publish/book/BookCheck.h"

#include "publish/PublishReport.h"

#include <qpdf/QPDF.hh>

#include <QCoreApplication>
#include <QFile>

namespace {

struct CheckTexts
{
    Q_DECLARE_TR_FUNCTIONS(BookCheck)
};

using Found = QPDFObjectHandle;

class Checking
{
public:
    Checking(const BookFacts& facts, BookProgress& progress) : facts_(facts), progress_(progress) {}

    void Check(const QString& path)
    {
        file_.setFileName(path);
        Require(file_.open(QIODevice::ReadOnly) && file_.size() == facts_.bytes, "size");
        QPDF pdf;
        pdf.setSuppressWarnings(true);
        pdf.setAttemptRecovery(false); // what would have to be recovered is not whole
        pdf.processFile(QFile::encodeName(path).constData());
        const std::vector<Found> pages = pdf.getAllPages();
        Require(pages.size() == facts_.pages.size(), "pages");
        for (std::size_t page = 0; page < pages.size(); ++page) {
            progress_.Check();
            CheckPage(pages[page], facts_.pages[page]);
        }
        CheckOutline(pdf.getRoot().getKey("/Outlines"));
        Require(links_ >= facts_.chapters, "links");
        Require(pdf.getWarnings().empty(), "warnings");
    }

private:
    void Require(bool isRight, const char* what)
    {
        if (!isRight)
            throw std::runtime_error(what);
    }

    void CheckPage(Found page, const std::set<std::string>& expected)
    {
        Found contents = page.getKey("/Contents");
        Require(contents.isStream() || contents.isArray(), "contents");
        for (Found each :
             contents.isArray() ? contents.getArrayAsVector() : std::vector<Found>{contents})
            Require(each.isStream() && each.getRawStreamData() != nullptr, "contents");
        Found annotations = page.getKey("/Annots");
        links_ += annotations.isArray() ? annotations.getArrayNItems() : 0;
        Found named = page.getKey("/Resources").getKey("/XObject");
        const std::set<std::string> found =
            named.isDictionary() ? named.getKeys() : std::set<std::string>();
        Require(found == expected, "pictures");
        for (const std::string& name : expected) {
            if (checked_.insert(name).second)
                CheckPicture(named.getKey(name), facts_.pictures.at(name));
        }
    }

    void CheckPicture(Found stream, const BookFacts::Picture& expected)
    {
        Require(stream.isStream(), "picture");
        Found dictionary = stream.getDict();
        Require(dictionary.getKey("/Width").getIntValueAsInt() == expected.size.width() &&
                    dictionary.getKey("/Height").getIntValueAsInt() == expected.size.height(),
                "picture size");
        // The library has looked for the end of the stream where the length says.
        Require(dictionary.getKey("/Length").getIntValue() == expected.bytes, "picture length");
        Require(BytesAt(expected.at) == QByteArray("\xFF\xD8") &&
                    BytesAt(expected.at + expected.bytes - 2) == QByteArray("\xFF\xD9"),
                "picture data");
    }

    QByteArray BytesAt(qint64 place) { return file_.seek(place) ? file_.read(2) : QByteArray(); }

    void CheckOutline(Found outline)
    {
        int count = 0;
        if (outline.isDictionary()) {
            for (Found item = outline.getKey("/First");
                 item.isDictionary() && count <= facts_.chapters; item = item.getKey("/Next")) {
                Require(item.getKey("/Dest").isArray(), "outline");
                ++count;
            }
        }
        Require(count == facts_.chapters, "outline");
    }

    const BookFacts& facts_;
    BookProgress& progress_;
    QFile file_;
    std::set<std::string> checked_;
    int links_ = 0;
};

} // namespace

void CheckBook(const QString& path, const BookFacts& facts, BookProgress& progress)
{
    try {
        Checking(facts, progress).Check(path);
    } catch (const std::exception& error) {
        throw PublishError(CheckTexts::tr("The book was not written whole (%1).")
                               .arg(QString::fromUtf8(error.what())));
    }
}
