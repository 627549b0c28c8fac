// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class QImage;

/// The pictures, each painted anew by its function, always the same.
namespace Motifs {

QImage winterHut();        // landscape, blue hour, snow
QImage childrensDrawing(); // square, wax crayons
QImage morningMist();      // panorama, dawn
QImage cherryBlossom();    // upright, close up
QImage poppyMeadow();      // landscape, spring noon
QImage balloons();         // upright, early morning
QImage lavender();         // square, sunset
QImage sailing();          // wide, noon at sea
QImage lighthouse();       // upright, dusk
QImage mountainLake();     // landscape, sunrise
QImage birchWood();        // landscape, autumn
QImage cityByNight();      // panorama, lights on a river
QImage northernLights();   // landscape, night
QImage girlWithHat();      // upright portrait
QImage grandfather();      // landscape portrait, the face at the right
QImage catAtWindow();      // square, evening

} // namespace Motifs
