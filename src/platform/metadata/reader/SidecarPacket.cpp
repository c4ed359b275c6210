// SPDX-License-Identifier: GPL-2.0-or-later
#include "SidecarPacket.h"

#include "SidecarFiles.h"

#include "platform/helper/child/RequestReader.h"

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

using namespace MetadataStream;

namespace {

constexpr char captionKey[] = "Xmp.dc.description";
constexpr char keywordsKey[] = "Xmp.dc.subject";
// What was written there last, to tell it from what another program wrote since.
constexpr char ownCaptionKey[] = "Xmp.lumenark.Caption";
constexpr char captionIsOwnKey[] = "Xmp.lumenark.CaptionIsOwn";
constexpr char ownKeywordsKey[] = "Xmp.lumenark.Keywords";

struct Description
{
    std::string picture; // path
    std::string caption;
    std::vector<std::string> keywords;
    std::vector<std::pair<std::string, std::string>> ownFields; // name, text
};

Description TakeDescription(std::string_view request)
{
    Description taken;
    taken.picture = TakeText(request);
    taken.caption = TakeText(request);
    for (std::uint32_t left = TakeNumber(request); left > 0 && !request.empty(); --left)
        taken.keywords.emplace_back(TakeText(request));
    while (!request.empty()) {
        const std::string name(TakeText(request));
        taken.ownFields.emplace_back(name, TakeText(request));
    }
    return taken;
}

struct PresentSidecar
{
    std::string path;
    Status status = Done; // Damaged: it is there, but cannot be read, and so not be written
};

// The one that is there, its own first; else its own, to be made.
PresentSidecar FindSidecar(const std::string& picture, Exiv2::XmpData& xmp)
{
    const auto sidecars = SidecarsOf(picture);
    for (const SidecarFile& sidecar : sidecars) {
        const SidecarState state = ReadSidecar(sidecar.path, xmp);
        const bool isOwn = sidecar.place == InOwnSidecar;
        if (state == SidecarState::Unreadable)
            return {sidecar.path, Damaged};
        if (state == SidecarState::Whole && (isOwn || !IsOfOtherPicture(picture, xmp)))
            return {sidecar.path};
        xmp.clear();
    }
    return {sidecars.front().path};
}

void Erase(Exiv2::XmpData& xmp, const std::string& key)
{
    const auto found = xmp.findKey(Exiv2::XmpKey(key));
    if (found != xmp.end())
        xmp.erase(found);
}

void SetText(Exiv2::XmpData& xmp, const std::string& key, const std::string& text)
{
    Erase(xmp, key);
    if (text.empty())
        return;
    Exiv2::XmpTextValue value;
    value.value_ = text; // unlike read(), which looks for a kind at the text's beginning
    xmp.add(Exiv2::XmpKey(key), &value);
}

void SetBag(Exiv2::XmpData& xmp, const std::string& key, const std::vector<std::string>& texts)
{
    Erase(xmp, key);
    if (texts.empty())
        return;
    Exiv2::XmpArrayValue value(Exiv2::xmpBag);
    for (const std::string& text : texts)
        value.read(text);
    xmp.add(Exiv2::XmpKey(key), &value);
}

std::vector<std::string> BagOf(const Exiv2::XmpData& xmp, const std::string& key)
{
    std::vector<std::string> texts;
    const auto found = xmp.findKey(Exiv2::XmpKey(key));
    if (found == xmp.end())
        return texts;
    for (long i = 0; i < found->count(); ++i)
        texts.push_back(found->toString(i));
    return texts;
}

// Other languages stay. An empty caption only takes out one that was written by this program.
void SetCaption(Exiv2::XmpData& xmp, const std::string& caption)
{
    Exiv2::LangAltValue texts;
    const auto found = xmp.findKey(Exiv2::XmpKey(captionKey));
    if (found != xmp.end()) {
        if (const auto* present = dynamic_cast<const Exiv2::LangAltValue*>(&found->value()))
            texts = *present;
        else
            texts.value_["x-default"] = found->toString();
    }
    const auto present = texts.value_.find("x-default");
    const bool isOwn = present != texts.value_.end() && TextOf(xmp, captionIsOwnKey) &&
                       present->second == TextOf(xmp, ownCaptionKey);
    if (!caption.empty())
        texts.value_["x-default"] = caption;
    else if (isOwn)
        texts.value_.erase(present);
    Erase(xmp, captionKey);
    if (!texts.value_.empty())
        xmp.add(Exiv2::XmpKey(captionKey), &texts);
    SetText(xmp, ownCaptionKey, DefaultOf(texts));
    SetText(xmp, captionIsOwnKey, caption.empty() ? "" : "True");
}

// Keywords of others stay; those that this program added before make room for the present ones.
void SetKeywords(Exiv2::XmpData& xmp, const std::vector<std::string>& keywords)
{
    const std::vector<std::string> former = BagOf(xmp, ownKeywordsKey);
    std::vector<std::string> all = BagOf(xmp, keywordsKey);
    all.erase(std::remove_if(all.begin(), all.end(),
                             [&former](const std::string& keyword) {
                                 return std::find(former.begin(), former.end(), keyword) !=
                                        former.end();
                             }),
              all.end());
    std::set<std::string> held(all.begin(), all.end());
    std::vector<std::string> added;
    for (const std::string& keyword : keywords) {
        if (!held.insert(keyword).second)
            continue;
        added.push_back(keyword);
        all.push_back(keyword);
    }
    SetBag(xmp, keywordsKey, all);
    SetBag(xmp, ownKeywordsKey, added);
}

std::string EscapedForAttribute(const std::string& text)
{
    std::string escaped;
    for (const char character : text) {
        if (character == '&')
            escaped += "&amp;";
        else if (character == '"')
            escaped += "&quot;";
        else if (character == '<')
            escaped += "&lt;";
        else
            escaped += character;
    }
    return escaped;
}

// The library takes a prefix for declared that another one ends in, as "f" after "rdf".
void DeclarePrefixes(std::string& packet, const Exiv2::XmpData& xmp)
{
    const std::string place = "<rdf:Description rdf:about=\"\"";
    const std::size_t at = packet.find(place);
    if (at == std::string::npos)
        return;
    for (const Exiv2::Xmpdatum& datum : xmp) {
        const std::string declaration = "xmlns:" + datum.groupName() + "=\"";
        if (packet.find(declaration) == std::string::npos)
            packet.insert(at + place.size(),
                          "\n    " + declaration +
                              EscapedForAttribute(Exiv2::XmpProperties::ns(datum.groupName())) +
                              '"');
    }
}

// Throws where the result would not be read as it is meant: it must not take the place of what can
// be read.
std::string Encoded(const Exiv2::XmpData& xmp)
{
    std::string packet;
    const int result = Exiv2::XmpParser::encode(
        packet, xmp, Exiv2::XmpParser::omitPacketWrapper | Exiv2::XmpParser::useCompactFormat);
    DeclarePrefixes(packet, xmp);
    packet.insert(0, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    Exiv2::XmpData again;
    if (result != 0 || Exiv2::XmpParser::decode(again, packet) != 0 || again.count() != xmp.count())
        throw std::runtime_error("cannot be written as it is");
    return packet;
}

} // namespace

void WriteSidecarPacket(std::string_view request, FrameWriter& stream)
{
    const Description description = TakeDescription(request);
    Exiv2::XmpData xmp;
    const PresentSidecar sidecar = FindSidecar(description.picture, xmp);
    std::string packet;
    if (sidecar.status == Done) {
        SetCaption(xmp, description.caption);
        SetKeywords(xmp, description.keywords);
        SetText(xmp, pictureKey, QuotedNameOf(description.picture));
        for (const auto& [name, text] : description.ownFields)
            SetText(xmp, "Xmp.lumenark." + name, text);
        packet = Encoded(xmp);
    }
    stream.Number(sidecar.status);
    stream.Text(sidecar.path);
    stream.Text(packet);
}
