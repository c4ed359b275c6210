// SPDX-License-Identifier: MIT
#include "publish/book/BookAppending.h"

#include <qpdf/QPDF.hh>

#include <QtEndian>

#include <algorithm>

namespace {

constexpr int lengthDigits = 12;
constexpr QByteArrayView tableMark("startxref\n");

} // namespace

BookAppending::BookAppending(BookOutput& output, const QByteArray& base) : output_(output)
{
    QPDF pdf;
    pdf.setSuppressWarnings(true);
    pdf.setAttemptRecovery(false);
    pdf.processMemoryFile("book", base.constData(), std::size_t(base.size()));
    for (const char* key : {"/Root", "/Info", "/ID"})
        trailer_ += QByteArray(key) + ' ' +
                    QByteArray::fromStdString(pdf.getTrailer().getKey(key).unparse()) + ' ';
    objects_ = int(pdf.getObjectCount()) + 1; // number 0 is nobody's
    const qsizetype mark = base.lastIndexOf(tableMark) + tableMark.size();
    previousTable_ = base.mid(mark, base.indexOf('\n', mark) - mark).toLongLong();
    output.Write(base);
}

BookAppending::Place BookAppending::Add(const Picture& picture, const std::function<void()>& writer)
{
    entries_.push_back({picture.object, output_.Count()});
    output_.Write(QByteArray::number(picture.object) +
                  " 0 obj\n<< /Type /XObject /Subtype /Image /BitsPerComponent 8 /Width " +
                  QByteArray::number(picture.size.width()) + " /Height " +
                  QByteArray::number(picture.size.height()) + " /ColorSpace " + picture.space +
                  " /Filter /DCTDecode /Length ");
    const qint64 lengthAt = output_.Count();
    output_.Write(QByteArray(lengthDigits, ' ') + ">>\nstream\n");
    Place place{output_.Count(), 0};
    writer();
    place.bytes = output_.Count() - place.at;
    output_.Write("\nendstream\nendobj\n");
    output_.Replace(lengthAt, QByteArray::number(place.bytes).leftJustified(lengthDigits));
    return place;
}

// A stream of references, where each has ten bytes: its kind, the place in eight, the generation.
void BookAppending::Finish()
{
    const int own = objects_;
    const qint64 at = output_.Count();
    entries_.push_back({own, at});
    std::sort(entries_.begin(), entries_.end(),
              [](const Entry& one, const Entry& other) { return one.object < other.object; });
    QByteArray index;
    QByteArray table;
    for (const Entry& entry : entries_) {
        index += QByteArray::number(entry.object) + " 1 ";
        QByteArray place(sizeof(qint64), '\0');
        qToBigEndian(entry.at, place.data());
        table += '\1' + place + '\0';
    }
    output_.Write(QByteArray::number(own) + " 0 obj\n<< /Type /XRef /W [1 8 1] /Size " +
                  QByteArray::number(own + 1) + " /Prev " + QByteArray::number(previousTable_) +
                  ' ' + trailer_ + "/Index [" + index + "] /Length " +
                  QByteArray::number(table.size()) + " >>\nstream\n" + table +
                  "\nendstream\nendobj\n" + tableMark.toByteArray() + QByteArray::number(at) +
                  "\n%%EOF\n");
}
