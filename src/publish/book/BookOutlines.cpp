// SPDX-License-Identifier: MIT
#include "publish/book/BookOutlines.h"

namespace {

using Entry = QPDFObjectHandle;

Entry NewNumber(qreal number)
{
    return Entry::newReal(number, 2);
}

// ISO 32000-1, 12.3.2: that place at the window's top, in the window's width or zoom as it is.
Entry DestinationOf(const std::vector<QPDFObjectHandle>& pages, qreal paperHeight,
                    const BookPlace& place)
{
    return Entry::newArray({pages[std::size_t(place.page)], Entry::newName("/XYZ"),
                            Entry::newNull(), NewNumber(paperHeight - place.top),
                            Entry::newNull()});
}

// 12.3.3: a list that is linked both ways.
void AddOutline(QPDF& pdf, const std::vector<Entry>& items)
{
    Entry outline = pdf.makeIndirectObject(Entry::newDictionary());
    outline.replaceKey("/Type", Entry::newName("/Outlines"));
    outline.replaceKey("/First", items.front());
    outline.replaceKey("/Last", items.back());
    outline.replaceKey("/Count", Entry::newInteger(qint64(items.size())));
    for (std::size_t i = 0; i < items.size(); ++i) {
        Entry item = items[i];
        item.replaceKey("/Parent", outline);
        if (i > 0)
            item.replaceKey("/Prev", items[i - 1]);
        if (i + 1 < items.size())
            item.replaceKey("/Next", items[i + 1]);
    }
    pdf.getRoot().replaceKey("/Outlines", outline);
    pdf.getRoot().replaceKey("/PageMode", Entry::newName("/UseOutlines"));
}

Entry LinkOf(QPDF& pdf, const QRectF& place, qreal paperHeight, const Entry& destination)
{
    Entry link = Entry::newDictionary();
    link.replaceKey("/Type", Entry::newName("/Annot"));
    link.replaceKey("/Subtype", Entry::newName("/Link"));
    link.replaceKey(
        "/Rect", Entry::newArray({NewNumber(place.left()), NewNumber(paperHeight - place.bottom()),
                                  NewNumber(place.right()), NewNumber(paperHeight - place.top())}));
    link.replaceKey("/Border", Entry::newArray({Entry::newInteger(0), Entry::newInteger(0),
                                                Entry::newInteger(0)}));
    link.replaceKey("/F", Entry::newInteger(4)); // printed, were there anything to see
    link.replaceKey("/Dest", destination);
    return pdf.makeIndirectObject(link);
}

} // namespace

void AddBookOutlines(QPDF& pdf, const std::vector<QPDFObjectHandle>& pages, qreal paperHeight,
                     const PublishedStory& story, const std::vector<BookPlace>& chapters,
                     const std::vector<std::vector<BookPage::Link>>& links)
{
    if (chapters.empty())
        return;
    std::vector<Entry> items;
    for (std::size_t i = 0; i < chapters.size(); ++i) {
        Entry item = pdf.makeIndirectObject(Entry::newDictionary());
        item.replaceKey(
            "/Title", Entry::newUnicodeString(story.chapters[i].title.simplified().toStdString()));
        item.replaceKey("/Dest", DestinationOf(pages, paperHeight, chapters[i]));
        items.push_back(item);
    }
    AddOutline(pdf, items);
    for (std::size_t page = 0; page < pages.size(); ++page) {
        std::vector<Entry> annotations;
        for (const BookPage::Link& link : links[page])
            annotations.push_back(
                LinkOf(pdf, link.place, paperHeight,
                       DestinationOf(pages, paperHeight, chapters[std::size_t(link.chapter)])));
        if (!annotations.empty())
            QPDFObjectHandle(pages[page]).replaceKey("/Annots", Entry::newArray(annotations));
    }
}
