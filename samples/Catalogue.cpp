// SPDX-License-Identifier: MIT
#include "Catalogue.h"

#include <algorithm>

namespace {

struct Line
{
    SamplePicture picture;
    Scene scene;
};

// clang-format off
const std::vector<Line>& Lines()
{
    static const std::vector<Line> lines = {
        {{"spring-hills-dawn.jpg", {1800, 1200}, "The year begins with mist in the valley", "Spring", "Hills", "Landscape", "Dawn", "", "", "", ""}, HillsScene},
        {{"spring-lane.jpg", {1200, 1800}, "Anton knows every stone of this lane", "Spring", "Old Town", "Street", "Day", "Anton", "Walking", "", ""}, LaneScene},
        {{"spring-orchard.jpg", {2100, 1400}, "For one week the orchard outshines the clouds", "Spring", "Orchard", "Trees", "Day", "Clara", "Walking", "", ""}, OrchardScene},
        {{"spring-tree.jpg", {1600, 1200}, "The old cherry on the hill, the first of four visits", "Spring", "Hills", "Tree", "Day", "", "", "", ""}, TreeScene},
        {{"spring-bridge.jpg", {1800, 1200}, "Under the bridge the river still runs cold", "Spring", "River", "Bridge", "Day", "Jonas", "Walking", "Clara", "Walking"}, BridgeScene},
        {{"spring-forest.jpg", {1200, 1800}, "New leaves let the light fall all the way down", "Spring", "Forest", "Trees", "Day", "", "", "", ""}, ForestScene},
        {{"spring-kite.jpg", {1200, 1600}, "Mira has found the wind", "Spring", "Hills", "Kite", "Day", "Mira", "Flying a kite", "Jonas", "Walking"}, KiteScene},
        {{"spring-street.jpg", {1800, 1200}, "Saturday morning, and the whole street is sweeping", "Spring", "Old Town", "Street", "Day", "Clara", "Shopping", "", ""}, StreetScene},
        {{"spring-meadow.png", {1500, 1000}, "More flowers than anyone could name", "Spring", "Meadow", "Flowers", "Day", "Mira", "Playing", "", ""}, MeadowScene},
        {{"spring-tower.jpg", {1000, 1500}, "Swifts are back around the tower", "Spring", "Old Town", "Church", "Dawn", "", "", "", ""}, TowerScene},
        {{"spring-rain.jpg", {1600, 1200}, "The storm came over the hill and did not knock", "Spring", "Hills", "Sky", "Storm", "", "", "", ""}, SkyScene},
        {{"spring-panorama.jpg", {2400, 800}, "From the ridge you can see where we live", "Spring", "Hills", "Landscape", "Day", "Clara", "Walking", "Jonas", "Walking"}, HillsScene},
        {{"spring-boat.jpg", {1200, 1200}, "First time out on the water this year", "Spring", "Lake", "Boat", "Dawn", "Anton", "Rowing", "", ""}, BoatScene},
        {{"summer-lake-dawn.jpg", {2100, 1400}, "Five in the morning belongs to Anton and the fish", "Summer", "Lake", "Landscape", "Dawn", "Anton", "Fishing", "", ""}, LakeScene},
        {{"summer-lighthouse.jpg", {1200, 1800}, "A hundred and twelve steps, Mira counted", "Summer", "Coast", "Lighthouse", "Day", "Mira", "Playing", "", ""}, CoastScene},
        {{"summer-beach.jpg", {1800, 1200}, "The sand remembers nothing by evening", "Summer", "Beach", "Sea", "Day", "Clara", "Reading", "Mira", "Playing"}, BeachScene},
        {{"summer-picnic.jpg", {1600, 1200}, "The cake did not live to see the afternoon", "Summer", "Meadow", "Picnic", "Day", "Jonas", "Picnic", "Clara", "Picnic"}, PicnicScene},
        {{"summer-wheat.jpg", {2100, 1400}, "Wheat as far as the tractor goes", "Summer", "Fields", "Landscape", "Day", "", "", "", ""}, FieldScene},
        {{"summer-harbour.jpg", {2100, 1400}, "Every house on the quay has chosen its own colour", "Summer", "Harbour", "Building", "Day", "", "", "", ""}, HarbourScene},
        {{"summer-market.jpg", {1800, 1200}, "Clara only went for cherries", "Summer", "Market", "Stalls", "Day", "Clara", "Shopping", "Anton", "Walking"}, MarketScene},
        {{"summer-sails.jpg", {1200, 1200}, "Just enough wind to make a picture", "Summer", "Coast", "Boat", "Day", "", "", "", ""}, SailScene},
        {{"summer-balloons.jpg", {1200, 1600}, "They came over the house without a sound", "Summer", "Hills", "Balloon", "Dawn", "", "", "", ""}, BalloonScene},
        {{"summer-tree.jpg", {1600, 1200}, "Second visit: shade, a book, and no hurry", "Summer", "Hills", "Tree", "Day", "Clara", "Reading", "", ""}, TreeScene},
        {{"summer-mountains.jpg", {1600, 1200}, "Snow up there, barefoot down here", "Summer", "Mountains", "Landscape", "Day", "", "", "", ""}, MountainScene},
        {{"summer-sea-evening.jpg", {2400, 600}, "The last boat follows the light home", "Summer", "Coast", "Sea", "Dusk", "", "", "", ""}, CoastScene},
        {{"summer-stars.jpg", {1800, 1200}, "We stayed up to see one star fall and saw eleven", "Summer", "Mountains", "Stars", "Night", "Jonas", "Resting", "Mira", "Resting"}, CampScene},
        {{"summer-harbour-night.png", {1350, 900}, "The harbour keeps its lamps in the water", "Summer", "Harbour", "Building", "Night", "", "", "", ""}, HarbourScene},
        {{"autumn-ferry.jpg", {1800, 1200}, "The ferry leaves before the fog does", "Autumn", "Harbour", "Ship", "Fog", "Clara", "Walking", "", ""}, FerryScene},
        {{"autumn-tree.jpg", {1600, 1200}, "Third visit: it had dressed for the occasion", "Autumn", "Hills", "Tree", "Day", "", "", "", ""}, TreeScene},
        {{"autumn-forest.jpg", {1800, 1200}, "The path is under there somewhere", "Autumn", "Forest", "Trees", "Day", "Jonas", "Walking", "Mira", "Walking"}, ForestScene},
        {{"autumn-apples.jpg", {1600, 1200}, "Whoever picks may also eat", "Autumn", "Orchard", "Trees", "Day", "Anton", "Picking apples", "Mira", "Picking apples"}, OrchardScene},
        {{"autumn-mill.jpg", {1200, 1600}, "The mill still turns when nobody is looking", "Autumn", "Fields", "Windmill", "Day", "", "", "", ""}, MillScene},
        {{"autumn-lake-fog.jpg", {1800, 1200}, "Somewhere beyond the pier there is a lake", "Autumn", "Lake", "Landscape", "Fog", "Anton", "Fishing", "", ""}, LakeScene},
        {{"autumn-field.jpg", {2400, 800}, "The crows read the furrows line by line", "Autumn", "Fields", "Landscape", "Dusk", "", "", "", ""}, FieldScene},
        {{"autumn-bridge.jpg", {1800, 1200}, "Three arches and three more below", "Autumn", "River", "Bridge", "Dusk", "Anton", "Walking", "", ""}, BridgeScene},
        {{"autumn-roofs.jpg", {1600, 1200}, "Someone is always the first to light the stove", "Autumn", "Old Town", "Roofs", "Dusk", "", "", "", ""}, RooftopScene},
        {{"autumn-street.jpg", {1800, 1200}, "The lamps come on a little earlier every day", "Autumn", "Old Town", "Street", "Dusk", "Jonas", "Walking", "Clara", "Walking"}, StreetScene},
        {{"autumn-storm.jpg", {1800, 1200}, "The keeper did not sleep that night", "Autumn", "Coast", "Lighthouse", "Storm", "", "", "", ""}, CoastScene},
        {{"autumn-birds.bmp", {900, 675}, "They discussed the route for an hour", "Autumn", "Hills", "Sky", "Day", "Mira", "Walking", "", ""}, SkyScene},
        {{"winter-first-snow.jpg", {1600, 1200}, "The town woke up whispering", "Winter", "Old Town", "Roofs", "Dawn", "", "", "", ""}, RooftopScene},
        {{"winter-snowman.jpg", {1200, 1200}, "He was promised the hat until March", "Winter", "Old Town", "Snowman", "Day", "Mira", "Playing", "", ""}, SnowmanScene},
        {{"winter-skating.jpg", {2100, 1400}, "The lake is open again, the other way up", "Winter", "Lake", "Ice", "Day", "Jonas", "Skating", "Mira", "Skating"}, SkatingScene},
        {{"winter-forest.jpg", {1200, 1800}, "Nobody had walked here before us, except a fox", "Winter", "Forest", "Trees", "Day", "Clara", "Walking", "", ""}, ForestScene},
        {{"winter-market.jpg", {1800, 1200}, "Cinnamon, wool and cold fingers", "Winter", "Market", "Stalls", "Night", "Clara", "Shopping", "Mira", "Walking"}, MarketScene},
        {{"winter-mountains.jpg", {2400, 800}, "The peaks had the whole day to themselves", "Winter", "Mountains", "Landscape", "Day", "", "", "", ""}, MountainScene},
        {{"winter-tree.jpg", {1600, 1200}, "Fourth visit: now you can see how it is made", "Winter", "Hills", "Tree", "Dusk", "", "", "", ""}, TreeScene},
        {{"winter-lane.jpg", {1200, 1800}, "One more corner and we are home", "Winter", "Old Town", "Street", "Night", "Jonas", "Walking", "Clara", "Walking"}, LaneScene},
        {{"winter-lantern.jpg", {1200, 1600}, "A light on the sill for whoever is still out", "Winter", "Old Town", "Lantern", "Night", "", "", "", ""}, LanternScene},
        {{"winter-peaks-dusk.jpg", {2400, 600}, "The mountains keep the day a little longer", "Winter", "Mountains", "Landscape", "Dusk", "", "", "", ""}, MountainScene},
        {{"winter-lighthouse.jpg", {1600, 1200}, "It counts to seven and looks at you again", "Winter", "Coast", "Lighthouse", "Night", "", "", "", ""}, CoastScene},
        {{"winter-stars.png", {900, 600}, "The year ends as quietly as it came", "Winter", "Mountains", "Stars", "Night", "", "", "", ""}, CampScene},
    };
    return lines;
}
// clang-format on

} // namespace

const std::vector<SamplePicture>& SamplePictures()
{
    static const std::vector<SamplePicture> pictures = [] {
        std::vector<SamplePicture> result;
        for (const Line& line : Lines()) {
            result.push_back(line.picture);
        }
        return result;
    }();
    return pictures;
}

Scene SceneOf(const QString& fileName)
{
    const auto& lines = Lines();
    const auto found = std::find_if(lines.begin(), lines.end(), [&fileName](const Line& line) {
        return line.picture.fileName == fileName;
    });
    return found == lines.end() ? nullptr : found->scene;
}
