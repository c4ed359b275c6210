// SPDX-License-Identifier: MIT
#include "catalogue/StarterLabels.h"

#include <QCoreApplication>

namespace {

struct StarterTexts
{
    Q_DECLARE_TR_FUNCTIONS(StarterLabels)
};

LabelSet FamilyLabels()
{
    return {StarterTexts::tr("Family"),
            {StarterTexts::tr("Event"), StarterTexts::tr("First person"),
             StarterTexts::tr("Second person"), StarterTexts::tr("Picture")},
            {StarterTexts::tr("Year"), StarterTexts::tr("Occasion"), StarterTexts::tr("Place"),
             StarterTexts::tr("Person"), StarterTexts::tr("Activity"), StarterTexts::tr("Mood"),
             StarterTexts::tr("Season"), StarterTexts::tr("Kind"), StarterTexts::tr("Quality")}};
}

LabelSet JourneyLabels()
{
    return {StarterTexts::tr("Journeys"),
            {StarterTexts::tr("Journey"), StarterTexts::tr("First person"),
             StarterTexts::tr("Second person"), StarterTexts::tr("Picture")},
            {StarterTexts::tr("Journey"), StarterTexts::tr("Country"), StarterTexts::tr("Place"),
             StarterTexts::tr("Person"), StarterTexts::tr("Activity"), StarterTexts::tr("Mood"),
             StarterTexts::tr("Subject"), StarterTexts::tr("Weather"),
             StarterTexts::tr("Time of Day")}};
}

LabelSet NatureLabels()
{
    return {StarterTexts::tr("Nature"),
            {StarterTexts::tr("Place"), StarterTexts::tr("First species"),
             StarterTexts::tr("Second species"), StarterTexts::tr("Picture")},
            {StarterTexts::tr("Region"), StarterTexts::tr("Habitat"), StarterTexts::tr("Season"),
             StarterTexts::tr("Species"), StarterTexts::tr("Behaviour"), StarterTexts::tr("Stage"),
             StarterTexts::tr("Light"), StarterTexts::tr("Kind"), StarterTexts::tr("Quality")}};
}

} // namespace

std::vector<LabelSet> StarterLabels()
{
    return {FamilyLabels(), JourneyLabels(), NatureLabels()};
}
