// SPDX-License-Identifier: MIT
#pragma once

#include "Canvas.h"

// A scene paints a whole sheet for the season and the light of its mood, with the people of the
// sheet where it has a place for them.
void HillsScene(Canvas& canvas);
void MeadowScene(Canvas& canvas);
void OrchardScene(Canvas& canvas);
void FieldScene(Canvas& canvas);
void MillScene(Canvas& canvas);
void TreeScene(Canvas& canvas);
void ForestScene(Canvas& canvas);
void MountainScene(Canvas& canvas);
void SkyScene(Canvas& canvas);
void BalloonScene(Canvas& canvas);
void KiteScene(Canvas& canvas);
void PicnicScene(Canvas& canvas);
void SnowmanScene(Canvas& canvas);
void LanternScene(Canvas& canvas);
void CampScene(Canvas& canvas);

void LakeScene(Canvas& canvas);
void SkatingScene(Canvas& canvas);
void BoatScene(Canvas& canvas);
void CoastScene(Canvas& canvas);
void BeachScene(Canvas& canvas);
void SailScene(Canvas& canvas);
void HarbourScene(Canvas& canvas);
void FerryScene(Canvas& canvas);
void BridgeScene(Canvas& canvas);

void StreetScene(Canvas& canvas);
void LaneScene(Canvas& canvas);
void MarketScene(Canvas& canvas);
void TowerScene(Canvas& canvas);
void RooftopScene(Canvas& canvas);
