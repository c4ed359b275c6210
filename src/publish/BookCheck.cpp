// SPDX-License-Identifier: MIT
#include "publish/BookCheck.h"

#include "publish/PublishReport.h"

#include <qpdf/Pipeline.hh>
#include <qpdf/QPDF.hh>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace {

struct CheckTexts
{
    Q_DECLARE_TR_FUNCTIONS(BookCheck)
};

using Found = QPDFObjectHandle;

// Takes a picture's bytes as they lie in the file.
class PictureWatch : public Pipeline
{
public:
    explicit PictureWatch(BookProgress& progress)
        : Pipeline("picture", nullptr), progress_(progress)
    {
    }

    void write(const unsigned char* data, std::size_t bytes) override
    {
        progress_.Check();
        for (std::size_t i = 0; i < bytes && count_ + qint64(i) < 2; ++i)
            first_ = first_ << 8 | data[i];
        for (std::size_t i = bytes - std::min<std::size_t>(bytes, 2); i < bytes; ++i)
            last_ = (last_ << 8 | data[i]) & 0xffff;
        count_ += qint64(bytes);
    }
    void finish() override {}

    bool IsJpegOf(qint64 bytes) const
    {
        return count_ == bytes && first_ == 0xffd8 && last_ == 0xffd9;
    }

private:
    BookProgress& progress_;
    qint64 count_ = 0;
    unsigned first_ = 0;
    unsigned last_ = 0;
};

class Checking
{
public:
    Checking(const BookFacts& facts, BookProgress& progress) : facts_(facts), progress_(progress) {}

    void Check(const QString& path)
    {
        Require(QFileInfo(path).size() == facts_.bytes, "size");
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
        PictureWatch watch(progress_);
        const bool isRead = stream.pipeStreamData(&watch, 0, qpdf_dl_none);
        Q_UNUSED(isRead) // false for bytes that are not decoded
        Require(watch.IsJpegOf(expected.bytes), "picture data");
    }

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
