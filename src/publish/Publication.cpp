// SPDX-License-Identifier: MIT
#include "publish/Publication.h"

namespace {

PublishReport PublishStory(const Publication& publication, const PublishedStory& story,
                           const PublishProgress& progress)
{
    switch (publication.as) {
    case PublishAs::Pages:
        return PublishPages(story, publication.pages, publication.place, progress);
    case PublishAs::SinglePage:
        return PublishSinglePage(story, publication.place, progress);
    case PublishAs::Book:
    case PublishAs::Album:
        break;
    }
    return PublishBook(story, publication.book, publication.place, progress);
}

} // namespace

PublishReport Publish(const Publication& publication, const PublicationProgress& progress)
{
    const auto making = [&progress](int done, int total) {
        return progress(PublishStage::Making, done, total);
    };
    if (publication.as == PublishAs::Album)
        return TakeAlbumAlong(publication.travel, publication.place, making);
    const std::optional<PublishedStory> story =
        ReadPublishedStory(publication.story, [&progress](int done, int total) {
            return progress(PublishStage::Reading, done, total);
        });
    return story ? PublishStory(publication, *story, making) : PublishReport{.isStopped = true};
}
