#!/usr/bin/env node
// SPDX-License-Identifier: LGPL-2.1-or-later
// Writes the public holidays that an independent package knows as CSV, for tests/data/public_holidays.csv:
//
//     cd $(mktemp -d) && npm install --ignore-scripts date-holidays && node .../tools/make_holiday_facts.mjs
//
// Run from a folder with the package; nothing of it becomes part of the product. The comparison is made by
// tests/MvProductBase/tst_MvPublicHolidays.cpp.
import { createRequire } from 'node:module';
import path from 'node:path';

const require = createRequire(path.join(process.cwd(), 'package.json'));
const { default: Holidays } = await import(require.resolve('date-holidays'));
const version = require('date-holidays/package.json').version;

const firstYear = 2026;
const lastYear = 2030;
const laender = 'BW BY BE BB HB HH HE MV NI NW RP SL SN ST SH TH';
// country, the package's state and region, the code of the region here
const places = [
    ...laender.split(' ').map((code) => ['DE', code, undefined, code]),
    ['DE', 'BY', 'A', 'BY-A'],
    ...'1 2 3 4 5 6 7 8 9'.split(' ').map((code) => ['AT', code, undefined, code]),
    ...'BE BS GE GL TI ZH'.split(' ').map((code) => ['CH', code, undefined, code]),
    ['FR', undefined, undefined, 'METRO'],
    ['FR', '67', undefined, 'ALS'],
    ...'ENG SCT WLS NIR'.split(' ').map((code) => ['GB', code, undefined, code]),
];

console.log(`# Public holidays ${firstYear} to ${lastYear}: country, region, date, name.`);
console.log(`# Source: npm package date-holidays ${version} (code ISC, data CC BY 3.0), entries of type "public".`);
console.log('# Made by tools/make_holiday_facts.mjs; not used by the product.');
for (const [country, state, region, code] of places) {
    const calendar = new Holidays(country, state, region);
    for (let year = firstYear; year <= lastYear; ++year) {
        for (const holiday of calendar.getHolidays(year).filter((day) => day.type === 'public'))
            console.log([country, code, holiday.date.slice(0, 10), holiday.name.replaceAll(',', ' ')].join(','));
    }
}
