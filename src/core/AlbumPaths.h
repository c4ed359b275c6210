// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Paths of pictures in the open album. One that is not absolute counts from the album's folder, so
// that an album can travel together with its pictures; "/" separates its folders on every system.
// While no album is open, paths are as they are given.
namespace GeneralModule {

// The path on disk. Paths of other systems ("C:\Photos") are absolute too.
QString AbsolutePath(const QString& file);
// The same for a picture of the album at that path, whether it is open or not.
QString AbsolutePath(const QString& file, const QString& album);

// How an album that travels with its pictures holds an absolute path; empty for one that is not in
// the album's folder or in one inside.
QString RelativePath(const QString& path);

// How the album shall hold the path of a picture that it held under the former one: relative where
// that was relative, and absolute where it was absolute or is not in the album's folder.
QString PathLike(const QString& former, const QString& path);

// The filter that finds the album's relative paths as folder and pattern together find the absolute
// ones; empty where there can be none. folder: absolute, with its separator at the end, escaped as
// a pattern.
QString RelativeFilter(const QString& folder, const QString& pattern);

} // namespace GeneralModule
