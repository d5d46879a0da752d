// Projects the coastlines and borders of Natural Earth (package world-atlas) and writes them as
// JSON: {"land": [ring, ...], "borders": [line, ...]}, each a list of [x, y] points. x runs from 0
// to 1 once around the globe from the meridian WEST_EDGE, y is the projected latitude in radians.
//
// usage: node coast.mjs OUTPUT WEST_EDGE

import { readFileSync, writeFileSync } from "node:fs";
import { createRequire } from "node:module";
import { geoCentroid, geoPath, geoProjection } from "d3-geo";
import { feature, mesh } from "topojson-client";

// A cylindrical projection between Mercator (1) and Miller (0.8): the far north keeps its shape
// without Greenland growing larger than Africa. forge/globe.py uses the same number.
const STRETCH = 0.9;

const [output, westEdge] = process.argv.slice(2);
const require = createRequire(import.meta.url);
const atlas = (name) => JSON.parse(readFileSync(require.resolve(`world-atlas/${name}`)));

const raw = (lambda, phi) => [
  lambda,
  Math.log(Math.tan(Math.PI / 4 + (STRETCH * phi) / 2)) / STRETCH,
];
const projection = geoProjection(raw)
  .scale(1)
  .translate([0, 0])
  .precision(0.0005)
  .rotate([-(Number(westEdge) + 180), 0]);

// geoPath draws into anything with the methods of a canvas; this one collects the points.
class Collector {
  lines = [];
  moveTo(x, y) {
    this.lines.push([]);
    this.lineTo(x, y);
  }
  lineTo(x, y) {
    this.lines.at(-1).push([x / (2 * Math.PI) + 0.5, -y]);
  }
  closePath() {}
  arc() {}
}

function project(shapes) {
  const collector = new Collector();
  const path = geoPath(projection, collector);
  for (const shape of shapes) path(shape);
  return collector.lines.filter((line) => line.length > 1);
}

function polygonsOf(geometry) {
  const parts = geometry.type === "Polygon" ? [geometry.coordinates] : geometry.coordinates;
  return parts.map((coordinates) => ({ type: "Polygon", coordinates }));
}

const landTopology = atlas("land-50m.json");
const countryTopology = atlas("countries-50m.json");
// The maps end in open ocean to the south, so that they join their own northern edge.
const land = feature(landTopology, landTopology.objects.land)
  .features.flatMap((item) => polygonsOf(item.geometry))
  .filter((polygon) => geoCentroid(polygon)[1] > -60);
const borders = mesh(countryTopology, countryTopology.objects.countries, (a, b) => a !== b);

writeFileSync(output, JSON.stringify({ land: project(land), borders: project([borders]) }));
