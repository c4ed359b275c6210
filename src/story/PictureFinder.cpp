// SPDX-License-Identifier: MIT
#include "story/PictureFinder.h"

#include <utility>

namespace {

std::function<void(const FindRequest&)> pictureFinder;

} // namespace

void FindPictures(const FindRequest& request)
{
    if (pictureFinder)
        pictureFinder(request);
}

bool HasPictureFinder()
{
    return bool(pictureFinder);
}

void SetPictureFinder(std::function<void(const FindRequest&)> finder)
{
    pictureFinder = std::move(finder);
}
