// SPDX-License-Identifier: MIT
#include "platform/picture/PictureReader.h"

#include "platform/picture/OpenPicture.h"

#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <atomic>
#include <exception>

PictureInfo ReadPictureInfo(const QString& path)
{
    try {
        return {OpenPicture(path).Size()};
    } catch (const std::exception&) { // out of memory: as good as damaged
        return {};
    }
}

QImage ReadPicture(const QString& path, QSize size)
{
    try {
        return OpenPicture(path).Read(size);
    } catch (const std::exception&) { // out of memory: as good as damaged
        return {};
    }
}

std::vector<QImage> ReadPictures(const std::vector<PictureRequest>& requests)
{
    std::vector<QImage> images(requests.size());
    std::atomic<std::size_t> next = 0;
    const auto readUntilNoneIsLeft = [&] {
        for (std::size_t i = next++; i < requests.size(); i = next++) {
            images[i] = ReadPicture(requests[i].path, requests[i].size);
        }
    };
    // This thread takes its share; a separate pool cannot be blocked by other work.
    const int helpers = std::min(QThread::idealThreadCount(), int(requests.size())) - 1;
    QThreadPool pool;
    pool.setMaxThreadCount(std::max(helpers, 0));
    for (int i = 0; i < helpers; ++i) {
        pool.start(readUntilNoneIsLeft);
    }
    readUntilNoneIsLeft();
    pool.waitForDone();
    return images;
}
