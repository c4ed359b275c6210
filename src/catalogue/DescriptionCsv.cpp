// SPDX-License-Identifier: MIT
#include "catalogue/DescriptionCsv.h"

#include "core/AlbumSets.h"
#include "core/Parameters.h"
#include "platform/data/DatabaseFile.h"
#include "platform/data/ReadLock.h"
#include "platform/files/FileReplacement.h"
#include "platform/text/CsvText.h"
#include "platform/text/TextCoding.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <stdexcept>
#include <system_error>

using GeneralModule::AlbumDatabase;

namespace {

struct DescriptionCsvTexts
{
    Q_DECLARE_TR_FUNCTIONS(DescriptionCsv)
};

constexpr qint64 largestTable = 512LL * 1024 * 1024; // bytes
constexpr char byteOrderMark[] = "\xEF\xBB\xBF";

// The same in every language, so that a table can be read wherever it was written.
const QString fileTitle = QStringLiteral("File");
const QString legendTitle = QStringLiteral("Legend");

[[noreturn]] void Refuse(const QString& text)
{
    throw std::runtime_error(text.toStdString());
}

QString LabelOf(int column)
{
    return GeneralModule::ColumnLabel(LabelledColumnOf(column));
}

QString TitleOf(int column)
{
    const QString label = LabelOf(column);
    return QStringLiteral("%1 [%2]").arg(label.isEmpty() ? QStringLiteral("Caracteristic") : label,
                                         QString::number(column + 1));
}

QByteArray RowOf(const DescribedPicture& picture)
{
    QStringList cells{picture.file, picture.record.legend};
    cells += QStringList(picture.record.values.begin(), picture.record.values.end());
    for (QString& cell : cells)
        cell = SafeCell(cell);
    return CsvRow(cells).toUtf8();
}

// The column that a title stands for, by its label and its number; none when it fits none.
std::optional<int> ColumnOf(const QString& title)
{
    static const QRegularExpression numbered(QStringLiteral("^(.*) \\[(\\d{1,2})\\]$"),
                                             QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = numbered.match(title);
    const int number = match.hasMatch() ? match.captured(2).toInt() - 1 : -1;
    const bool isNumber = number >= 0 && number < columnCount;
    std::vector<int> fitting;
    for (int column = 0; column < columnCount; ++column) {
        const QString label = LabelOf(column);
        const auto fits = [&label](const QString& text) {
            return !label.isEmpty() && label.compare(text, Qt::CaseInsensitive) == 0;
        };
        if (fits(title) || (match.hasMatch() && fits(match.captured(1))))
            fitting.push_back(column);
    }
    if (isNumber && std::find(fitting.begin(), fitting.end(), number) != fitting.end())
        return number;
    if (fitting.size() == 1)
        return fitting.front();
    if (fitting.empty() && isNumber && LabelOf(number).isEmpty())
        return number;
    return std::nullopt;
}

// What the cells of a row are.
struct Layout
{
    enum Kind { File = -1, Legend = -2, LeftOut = -3 }; // else a column
    std::vector<int> kinds;
};

Layout LayoutOf(const QStringList& titles, DescriptionTable& table)
{
    Layout layout;
    for (const QString& cell : titles) {
        const QString title = CellText(cell).trimmed();
        int kind = Layout::LeftOut;
        if (title.compare(fileTitle, Qt::CaseInsensitive) == 0)
            kind = Layout::File;
        else if (title.compare(legendTitle, Qt::CaseInsensitive) == 0)
            kind = Layout::Legend;
        else
            kind = ColumnOf(title).value_or(kind);
        const bool isTwice =
            std::find(layout.kinds.begin(), layout.kinds.end(), kind) != layout.kinds.end();
        if (kind == Layout::LeftOut || isTwice) {
            kind = Layout::LeftOut;
            if (!title.isEmpty())
                table.leftOut += title;
        }
        layout.kinds.push_back(kind);
    }
    return layout;
}

ImportedDescription DescriptionOf(const QStringList& cells, const Layout& layout)
{
    ImportedDescription imported;
    for (std::size_t i = 0; i < layout.kinds.size() && i < std::size_t(cells.size()); ++i) {
        const int kind = layout.kinds[i];
        const QString text = CellText(cells[qsizetype(i)]);
        if (kind == Layout::File)
            imported.file = text;
        else if (kind == Layout::Legend)
            imported.legend = text;
        else if (kind != Layout::LeftOut)
            imported.values[std::size_t(kind)] = text;
    }
    return imported;
}

QString ReadTableText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        Refuse(DescriptionCsvTexts::tr("The table '%1' cannot be read: %2")
                   .arg(QDir::toNativeSeparators(path), file.errorString()));
    if (file.size() > largestTable)
        Refuse(DescriptionCsvTexts::tr("The table '%1' is too large.")
                   .arg(QDir::toNativeSeparators(path)));
    QByteArray bytes = file.readAll();
    if (bytes.startsWith(byteOrderMark))
        bytes.remove(0, qsizetype(sizeof byteOrderMark) - 1);
    return DecodeUtf8OrWindows1252(bytes);
}

// A table that takes the place of an album would take everything with it.
bool IsAlbum(const QString& path)
{
    switch (KindOfDatabaseFile(path)) {
    case DatabaseFileKind::Plain:
    case DatabaseFileKind::OldAlbum:
        return true;
    case DatabaseFileKind::Encrypted: // or any other file of such a length
        return !path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
    default:
        return false;
    }
}

} // namespace

QStringList DescriptionTitles()
{
    QStringList titles{fileTitle, legendTitle};
    for (int column = 0; column < columnCount; ++column)
        titles += TitleOf(column);
    return titles;
}

std::optional<int> ExportDescriptionTable(const QString& path, bool replaces,
                                          const std::function<bool(int done)>& progress)
{
    const auto fail = [&path](const QString& reason) {
        Refuse(DescriptionCsvTexts::tr("The table '%1' cannot be written: %2")
                   .arg(QDir::toNativeSeparators(path), reason));
    };
    if (IsAlbum(path))
        fail(DescriptionCsvTexts::tr("It is an album. Choose another name."));
    try {
        FileReplacement replacement(path);
        QFile file(replacement.GetPath());
        if (!file.open(QIODevice::WriteOnly))
            fail(file.errorString());
        QStringList titles = DescriptionTitles();
        for (QString& title : titles)
            title = SafeCell(title);
        file.write(byteOrderMark + CsvRow(titles).toUtf8());
        int done = 0;
        bool isStopped = false;
        const ReadLock lock(*AlbumDatabase);
        VisitDescriptions([&](const DescribedPicture& picture) {
            file.write(RowOf(picture));
            ++done;
            isStopped = progress && !progress(done);
            return !isStopped;
        });
        if (isStopped)
            return std::nullopt;
        if (!file.flush() || file.error() != QFileDevice::NoError)
            fail(file.errorString());
        file.close();
        replacement.Commit(replaces ? FileReplacement::Taken::Replace
                                    : FileReplacement::Taken::Refuse);
        return done;
    } catch (const std::system_error& error) {
        fail(QString::fromLocal8Bit(error.code().message().c_str()));
    }
    return std::nullopt;
}

DescriptionTable ReadDescriptionTable(const QString& path)
{
    CsvReader reader(ReadTableText(path));
    DescriptionTable table;
    QStringList cells;
    reader.Next(cells);
    const Layout layout = LayoutOf(cells, table);
    if (std::find(layout.kinds.begin(), layout.kinds.end(), Layout::File) == layout.kinds.end())
        Refuse(DescriptionCsvTexts::tr(
                   "The table '%1' has no column \"File\", so it fits no pictures.")
                   .arg(QDir::toNativeSeparators(path)));
    while (reader.Next(cells))
        table.rows.push_back(DescriptionOf(cells, layout));
    if (reader.IsCutOff())
        Refuse(DescriptionCsvTexts::tr("The table '%1' ends inside the quotes of the row that "
                                       "begins on line %2. Nothing was taken from it.")
                   .arg(QDir::toNativeSeparators(path))
                   .arg(reader.GetLine()));
    return table;
}
