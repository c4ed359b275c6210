// SPDX-License-Identifier: MIT
#include "publish/album/TravelNames.h"

#include "platform/files/PathRoutines.h"
#include "publish/PublishList.h"

#include <QRegularExpression>

#include <algorithm>
#include <numeric>

namespace {

constexpr qsizetype longestName = 255;  // bytes of UTF-8
constexpr qsizetype longestEnding = 16; // bytes; what is longer is no extension
constexpr qsizetype roomForMore = 10;   // bytes, for a mark and another extension
constexpr qsizetype markLength = 4;     // hexadecimal digits

// What may be added to a file's name.
const QStringList ofScaled{QString(), QStringLiteral(".jpg"), QStringLiteral(".png")};

// "photo.tar" and ".gz"; all of a name without one.
std::pair<QString, QString> StemAndEnding(const QString& name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    if (dot <= 0 || name.sliced(dot).toUtf8().size() > longestEnding)
        return {name, {}};
    return {name.first(dot), name.sliced(dot)};
}

QString CutTo(QString text, qsizetype bytes)
{
    while (text.toUtf8().size() > bytes)
        text.chop(text.size() > 1 && text.back().isLowSurrogate() ? 2 : 1);
    return text;
}

bool IsDevice(const QString& name)
{
    static const QRegularExpression device(
        QStringLiteral(
            "^(CON|PRN|AUX|NUL|CONIN\\$|CONOUT\\$|(COM|LPT)[0-9\u00b9\u00b2\u00b3]) *(\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    return device.match(name).hasMatch();
}

QStringList Folders(const QString& path)
{
    QStringList folders;
    for (const QString& part : QString(FolderOf(path)).replace(u'\\', u'/').split(u'/')) {
        if (!part.isEmpty())
            folders += part;
    }
    return folders;
}

bool BeginsWith(const QStringList& folders, const QStringList& first)
{
    return folders.size() >= first.size() &&
           std::equal(first.begin(), first.end(), folders.begin());
}

QStringList CommonOf(const QStringList& a, const QStringList& b)
{
    const auto end = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first;
    return {a.begin(), end};
}

} // namespace

QString LegalName(const QString& name)
{
    static const QRegularExpression refused(QStringLiteral("[<>:\"/\\\\|?*\\x00-\\x1f\\x7f]"));
    QString legal = name;
    legal.replace(refused, QStringLiteral("_"));
    for (QChar& letter : legal) {
        if (letter.isNonCharacter())
            letter = u'_';
    }
    if (IsDevice(legal))
        legal.prepend(u'_');
    const auto [stem, ending] = StemAndEnding(legal);
    legal = CutTo(stem, longestName - ending.toUtf8().size()) + ending;
    if (legal.isEmpty() || legal.endsWith(u'.') || legal.endsWith(u' '))
        legal = CutTo(legal, longestName - 1) + u'_';
    return legal;
}

TravelNames::TravelNames(const QStringList& files, const QStringList& folders, const Layout& layout)
{
    std::vector<QStringList> places;
    for (const QString& file : files)
        places.push_back(Folders(file));
    const std::size_t count = places.size();
    // A folder that holds pictures keeps its name, for what a pattern says about those in it.
    for (const QString& folder : folders) {
        const QStringList wanted = Folders(folder);
        const auto isIn = [&wanted](const QStringList& place) { return BeginsWith(place, wanted); };
        if (std::any_of(places.begin(), places.begin() + qsizetype(count), isIn))
            places.push_back(wanted);
    }
    nodes_.push_back({layout.top + u'/'});
    MakeArms(places, layout);
    for (std::size_t i = 0; i < count; ++i) {
        const int node = NodeOf(places[i]);
        const QString name = TakeName(node, FileNameOf(files[qsizetype(i)]), ofScaled);
        names_.push_back(nodes_[std::size_t(node)].name + name);
    }
}

// Where there is nothing in common, as on several disks, there is an arm for each first folder.
void TravelNames::MakeArms(const std::vector<QStringList>& folders, const Layout& layout)
{
    if (folders.empty())
        return;
    const auto longest = [](const QStringList& a, const QStringList& b) { return CommonOf(a, b); };
    const bool hasRoot = std::any_of(folders.begin(), folders.end(),
                                     [](const QStringList& each) { return each.isEmpty(); });
    const QStringList all =
        std::accumulate(folders.begin() + 1, folders.end(), folders.front(), longest);
    if (hasRoot || !all.isEmpty())
        return AddArm(all, layout.kept);
    QStringList firsts;
    QHash<QString, QStringList> commons;
    for (const QStringList& each : folders) {
        if (!commons.contains(each.front())) {
            firsts += each.front();
            commons.insert(each.front(), each);
        }
        commons[each.front()] = CommonOf(commons[each.front()], each);
    }
    for (const QString& first : firsts)
        AddArm(commons[first], layout.kept + 1);
}

void TravelNames::AddArm(const QStringList& common, int kept)
{
    const qsizetype left = std::max<qsizetype>(0, common.size() - kept);
    QString key = common.first(left).join(u'/') + u'/';
    int node = 0;
    for (const QString& folder : common.sliced(left)) {
        key += folder + u'/';
        node = InnerOf(node, key, folder);
    }
    arms_.push_back({common, node});
    mostKept_ = std::max(mostKept_, int(common.size()));
}

const TravelNames::Arm* TravelNames::ArmOf(const QStringList& folders) const
{
    const auto arm = std::find_if(arms_.begin(), arms_.end(), [&folders](const Arm& each) {
        return BeginsWith(folders, each.common);
    });
    return arm == arms_.end() ? nullptr : &*arm;
}

int TravelNames::NodeOf(const QStringList& folders)
{
    const Arm* arm = ArmOf(folders);
    if (!arm)
        return InnerOf(0, folders.join(u'/') + u'/',
                       folders.isEmpty() ? QString() : folders.back());
    int node = arm->node;
    for (const QString& folder : folders.sliced(arm->common.size()))
        node = InnerOf(node, folder, folder);
    return node;
}

int TravelNames::InnerOf(int node, const QString& key, const QString& wanted)
{
    const int known = nodes_[std::size_t(node)].inner.value(key, -1);
    if (known >= 0)
        return known;
    const QString name =
        nodes_[std::size_t(node)].name + TakeName(node, wanted, {QString()}) + u'/';
    const int inner = int(nodes_.size());
    nodes_.push_back({name});
    nodes_[std::size_t(node)].inner.insert(key, inner);
    return inner;
}

// A name that had to be cut, and one that another file has, get a mark that comes from themselves.
QString TravelNames::TakeName(int node, const QString& wanted, const QStringList& endings)
{
    QSet<QString>& taken = nodes_[std::size_t(node)].taken;
    const auto isFree = [&](const QString& name) {
        return std::none_of(endings.begin(), endings.end(), [&](const QString& ending) {
            return taken.contains(FoldedName(name + ending));
        });
    };
    const auto [stem, ending] = StemAndEnding(LegalName(wanted));
    const bool isLong = wanted.toUtf8().size() > longestName - roomForMore;
    QString name = stem + ending;
    for (int trial = 0; (trial == 0 && isLong) || !isFree(name); ++trial) {
        const QString mark =
            FingerprintOf(wanted + u'/' + QString::number(trial)).first(markLength);
        name =
            CutTo(stem, longestName - roomForMore - ending.toUtf8().size()) + u'~' + mark + ending;
    }
    for (const QString& each : endings)
        taken.insert(FoldedName(name + each));
    return name;
}

QString TravelNames::FolderFor(const QString& folder)
{
    return nodes_[std::size_t(NodeOf(Folders(folder)))].name;
}
