// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

#include <vector>

// A picture of the sample story and what there is to say about it. The words are short, so that
// they serve as terms of an index; person2 may do something else than person1, or be empty.
struct SamplePicture
{
    QString fileName;
    QSize size;
    QString scene; // painted on it
    QString legend;
    QString season;
    QString place;
    QString subject;
    QString light;
    QString person1;
    QString activity1;
    QString person2;
    QString activity2;
};

// All of them, in the order in which they were taken: a year from spring to winter.
const std::vector<SamplePicture>& SamplePictures();

// Paints and writes folder/fileName; false when the file cannot be written, or when a scene or
// drawing has a mistake, which is named on the error channel.
bool PaintSamplePicture(const SamplePicture& picture, const QString& folder);
// Paints all of them at once on all cores; the names of those that could not be written.
QStringList PaintSamplePictures(const QString& folder);
