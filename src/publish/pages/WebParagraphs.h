// SPDX-License-Identifier: MIT
#pragma once

#include "publish/PublishedStory.h"
#include "publish/pages/WebPages.h"

#include <kainjow/mustache.hpp>

class WebPictures;

// What the template of a chapter's text is filled with: its paragraphs, with their pictures in
// rows.
class WebParagraphs
{
public:
    // The pictures must outlive it.
    WebParagraphs(const WebPictures& pictures, WebPages::Form form)
        : pictures_(pictures), form_(form)
    {
    }

    void Fill(kainjow::mustache::data& page, const PublishedChapter& chapter) const;

private:
    kainjow::mustache::data OfParagraph(const PublishedParagraph& paragraph, bool isFirst) const;
    kainjow::mustache::data OfPicture(const PublishedParagraph& paragraph,
                                      std::size_t number) const;
    void SetFiles(kainjow::mustache::data& data, const QString& file, std::size_t neighbours) const;
    double RatioOf(const QString& file) const;
    double SumOfRatios(const PublishedParagraph& paragraph) const;

    const WebPictures& pictures_;
    WebPages::Form form_;
};
