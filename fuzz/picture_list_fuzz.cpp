// SPDX-License-Identifier: MIT
// Albums, paragraphs and what they choose, all at random: the list of pictures is what a plain look
// at each picture gives, and showing from it loses none and shows none twice.
#include "core/AlbumSets.h"
#include "fuzz/Trials.h"
#include "platform/data/WriteBatch.h"
#include "story/Paragraph.h"
#include "story/PictureFilter.h"
#include "support/AlbumFixture.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

using namespace GeneralModule;

constexpr int columns = 12;
constexpr int someone = 7; // the paragraph's identifier

using Value = std::optional<QString>; // none: Null
using Values = std::array<Value, columns>;

struct Picture
{
    QString file;
    Values values;
};

struct Choice
{
    std::array<QString, columns> filters;
    QString selection; // as it is stored
    QString folder;    // what it was made of
    QString typed;
    QStringList linked;
    int most = 0;
};

const QStringList values{"a", "A", "b", "é", "É", "a b", "-", "(both)", "x"};
const QStringList folders{"/p/", "/p/q/", "/It [1] #/", "/It 1 1/", "C:\\sea\\"};
const QStringList names{"a.jpg",  "B.JPG",  "c;d.png", "#1.png",
                        "11.png", "no dot", "é.gif",   "[x].png"};
const QStringList patterns{"*.*",  "*",   "*.jpg",        "?.jpg", "*.png; *.gif", "c;d.png", "#*",
                           "[x]*", "É.*", "a.jpg;no dot", ";"};

// Through the album's own connection, which does not wait for the disk.
void Run(const QByteArray& statements)
{
    for (const QByteArray& statement : statements.split(';')) {
        if (!statement.isEmpty())
            AlbumDatabase->Execute(statement);
    }
}

Picture AnyPicture(Trials& trials)
{
    Picture picture{trials.AnyOf(folders) + trials.AnyOf(names), {}};
    for (Value& value : picture.values) {
        if (!trials.OneIn(8))
            value = trials.AnyOf(values);
    }
    return picture;
}

QString AnyFilter(Trials& trials)
{
    if (trials.OneIn(2))
        return QStringLiteral("*");
    QStringList tokens;
    for (int i = trials.Below(5); i >= 0; --i)
        tokens += trials.OneIn(4) ? QStringLiteral("!")
                                  : (trials.OneIn(20) ? QString() : trials.AnyOf(values));
    return tokens.join(u';');
}

Choice AnyChoice(Trials& trials, const std::vector<Picture>& pictures)
{
    Choice choice;
    choice.filters.fill(QStringLiteral("*"));
    // Few columns: of many conditions no picture would meet all.
    for (int i = trials.Below(4); i > 0; --i)
        choice.filters[std::size_t(trials.Below(columns))] = AnyFilter(trials);
    if (trials.OneIn(3)) {
        choice.folder = trials.OneIn(4) ? QString() : trials.AnyOf(folders);
        choice.typed = trials.AnyOf(patterns);
        choice.selection = PatternOfSelection(choice.folder + choice.typed);
    }
    for (int i = trials.Below(5) - 1; i > 0; --i)
        choice.linked += pictures.empty() || trials.OneIn(5) ? QStringLiteral("/elsewhere.jpg")
                                                             : trials.AnyOf(pictures).file;
    choice.most = trials.OneIn(2) ? 1000 : trials.Below(12);
    return choice;
}

bool IsSame(const QString& first, const QString& second)
{
    return first.compare(second, Qt::CaseInsensitive) == 0;
}

// Whether the value is none of those after a "!" and one of those before: in words, of each group
// between the "!".
bool Meets(const Value& value, const QString& filter)
{
    QStringList tokens = filter.split(u';');
    const qsizetype end = tokens.indexOf(QString());
    tokens.resize(end < 0 ? tokens.size() : end);
    if (filter == u"*")
        return true;
    const auto isGroupMet = [&value](const QStringList& group, bool isNegated) {
        if (group.isEmpty())
            return true;
        const bool isHeld =
            value && std::any_of(group.begin(), group.end(),
                                 [&](const QString& one) { return IsSame(one, *value); });
        return value && isHeld != isNegated; // of Null nothing can be said
    };
    QStringList group;
    bool isNegated = false;
    for (const QString& token : tokens) {
        if (token != u"!") {
            group += token;
            continue;
        }
        if (!isGroupMet(group, isNegated))
            return false;
        group.clear();
        isNegated = true;
    }
    return isGroupMet(group, isNegated);
}

bool MeetsAll(const Values& own, const Choice& choice)
{
    for (std::size_t column = 0; column < columns; ++column) {
        if (!Meets(own[column], choice.filters[column]))
            return false;
    }
    return true;
}

// * is any run of characters, ? any one.
bool Fits(QStringView text, QStringView pattern)
{
    if (pattern.isEmpty())
        return text.isEmpty();
    if (pattern.front() == u'*')
        return Fits(text, pattern.sliced(1)) || (!text.isEmpty() && Fits(text.sliced(1), pattern));
    return !text.isEmpty() && (pattern.front() == u'?' || pattern.front() == text.front()) &&
           Fits(text.sliced(1), pattern.sliced(1));
}

bool IsSelected(const QString& file, const Choice& choice)
{
    if (choice.selection.isEmpty())
        return true;
    QStringList alternatives{choice.typed};
    for (const QString& part : choice.typed.split(u';')) {
        if (!part.trimmed().isEmpty())
            alternatives += part.trimmed();
    }
    const QString folder = choice.folder.toLower();
    const QString path = file.toLower();
    return std::any_of(alternatives.begin(), alternatives.end(), [&](const QString& pattern) {
        const QString meant = pattern == u"*.*" ? QStringLiteral("*") : pattern.toLower();
        if (folder.isEmpty())
            return Fits(path, meant);
        return path.startsWith(folder) && Fits(QStringView(path).sliced(folder.size()), meant);
    });
}

QStringList Expected(const std::vector<Picture>& pictures, const Choice& choice)
{
    QStringList files = choice.linked;
    for (const Picture& picture : pictures) {
        Values swapped = picture.values;
        std::swap_ranges(swapped.begin() + 3, swapped.begin() + 6, swapped.begin() + 6);
        const bool isMet = MeetsAll(picture.values, choice) || MeetsAll(swapped, choice);
        if (isMet && IsSelected(picture.file, choice) && !choice.linked.contains(picture.file) &&
            files.size() < choice.most)
            files += picture.file;
    }
    return files;
}

void SetValue(RecordSet& set, int column, const Value& value)
{
    if (value)
        set.Set(QStringLiteral("Car%1").arg(column), *value);
}

std::vector<Picture> FillAlbum(Trials& trials)
{
    Run("DELETE FROM Image");
    std::vector<Picture> pictures;
    WriteBatch batch(AlbumDatabase);
    for (int i = trials.Below(40); i > 0; --i) {
        const Picture picture = AnyPicture(trials);
        const bool isHeld = std::any_of(pictures.begin(), pictures.end(), [&](const Picture& held) {
            return held.file == picture.file;
        });
        if (isHeld)
            continue;
        ImageSet->AddNew();
        ImageSet->Set(u"File", picture.file);
        for (int column = 0; column < columns; ++column)
            SetValue(*ImageSet, column, picture.values[std::size_t(column)]);
        ImageSet->Update();
        pictures.push_back(picture);
    }
    batch.Finish();
    return pictures;
}

void WriteParagraph(const Choice& choice)
{
    Run("DELETE FROM LinkedImages; DELETE FROM Paragraph");
    Run("INSERT INTO Paragraph(Id) VALUES(" + QByteArray::number(someone) + ')');
    FindById(*ParagraphSet, someone);
    ParagraphSet->Edit();
    ParagraphSet->Set(u"FileSelection", choice.selection);
    for (int column = 0; column < columns; ++column)
        SetValue(*ParagraphSet, column, choice.filters[std::size_t(column)]);
    ParagraphSet->Update();
    LinkedImagesSet->AddNew();
    LinkedImagesSet->Set(u"ParagraphId", someone + 1);
    LinkedImagesSet->Set(u"File", QStringLiteral("/of another.jpg"));
    LinkedImagesSet->Update();
    for (const QString& file : choice.linked) {
        LinkedImagesSet->AddNew();
        LinkedImagesSet->Set(u"ParagraphId", someone);
        LinkedImagesSet->Set(u"File", file);
        LinkedImagesSet->Update();
    }
}

// Takes all out as the screens do. Linked ones come first, the rest in its order unless at random.
QString FaultOfShowing(Trials& trials, PictureList& list, QStringList linked)
{
    QStringList rest = list.GetFiles().sliced(linked.size());
    const bool atRandom = trials.OneIn(2);
    QStringList putBack;
    const auto isThere = [](const QString& file) { return !file.contains(u'x'); };
    linked.removeIf([&](const QString& file) { return !isThere(file); });
    rest.removeIf([&](const QString& file) { return !isThere(file); });
    for (QString file = list.PickNext(atRandom, isThere); !file.isEmpty();
         file = list.PickNext(atRandom, isThere)) {
        if (list.PickNext(!atRandom, isThere) != file)
            return QStringLiteral("another picture before it was taken");
        list.TakePicked();
        const bool isInOrder = !putBack.isEmpty()  ? file == putBack.first()
                               : !linked.isEmpty() ? linked.contains(file)
                               : atRandom          ? rest.contains(file)
                                                   : file == rest.value(0);
        if (!isInOrder)
            return QStringLiteral("shown too early or twice: ") + file;
        QStringList& source = !putBack.isEmpty() ? putBack : !linked.isEmpty() ? linked : rest;
        source.removeOne(file);
        if (trials.OneIn(12)) {
            putBack = QStringList{file} + putBack;
            list.PutBack({file});
        } else if (trials.OneIn(12) && !rest.isEmpty() && putBack.isEmpty()) {
            const QString gone = trials.AnyOf(rest);
            list.Remove(gone);
            rest.removeAll(gone);
            linked.removeAll(gone);
        }
    }
    return linked.isEmpty() && rest.isEmpty() && putBack.isEmpty() && list.Count() == 0
               ? QString()
               : QStringLiteral("not all were shown");
}

void Try(Trials& trials, const std::vector<Picture>& pictures)
{
    const Choice choice = AnyChoice(trials, pictures);
    WriteParagraph(choice);
    QStringList filters(choice.filters.begin(), choice.filters.end());
    trials.SetInput(QStringLiteral("%1 | %2%3 | %4 | at most %5")
                        .arg(filters.join(QLatin1String(", ")), choice.folder, choice.typed,
                             choice.linked.join(u' '))
                        .arg(choice.most)
                        .toUtf8());
    PictureList list;
    int told = -1;
    BuildPictureList(ReadParagraph(someone)->GetQuery(), list, choice.most,
                     [&told](int count) { told = count; });
    const QStringList expected = Expected(pictures, choice);
    if (list.GetFiles() != expected)
        return trials.Fault(QStringLiteral("listed: %1\n  not: %2")
                                .arg(list.GetFiles().join(u' '), expected.join(u' ')));
    if (told != expected.size())
        trials.Fault(QStringLiteral("told that there are %1").arg(told));
    if (expected.size() > choice.linked.size())
        trials.CountAccepted();
    const QString fault = FaultOfShowing(trials, list, choice.linked);
    if (!fault.isEmpty())
        trials.Fault(fault);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const AlbumFixture album;
    AlbumDatabase->Execute("PRAGMA synchronous=OFF");
    Trials trials(argc, argv, 20);
    return trials.Run([&trials] {
        const std::vector<Picture> pictures = FillAlbum(trials);
        for (int i = 0; i < 8; ++i)
            Try(trials, pictures);
    });
}
