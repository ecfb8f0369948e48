// The module of live pages without a browser: live.mjs GALLERY SCRIPTS hashes WIDTH HEIGHT, or ... drag OUT.
// GALLERY is a folder that the companion program made; SCRIPTS holds what pages' scripts are made of.
import fs from 'node:fs';
import zlib from 'node:zlib';

const [gallery, scripts, task, ...more] = process.argv.slice(2);
const creatureOf = new Function(fs.readFileSync(`${scripts}/creature.js`, 'utf8') + ';return creatureOf')();
const unpacked = text => zlib.inflateSync(Buffer.from(text, 'base64'));
const module = unpacked(/moduleText = '(.*?)'/.exec(fs.readFileSync(`${gallery}/zentrik.js`, 'utf8'))[1]);

async function open(name) {
  const page = fs.readFileSync(`${gallery}/projects/${name}.html`, 'utf8');
  const part = id => unpacked(new RegExp(`id="${id}">(.*?)<`).exec(page)[1]);
  const data = JSON.parse(part('page'));
  const live = await creatureOf(module, {sprites: data.sprites.map(sprite => sprite.name)});
  live.problem = live.open(part('project'), data.values);
  live.to = (name, value) => live.set(live.row(name), value);
  live.ticks = count => { for (; count > 0; --count) live.tick(); };
  return live;
}
const hashOf = live => BigInt.asUintN(64, live.hash()).toString(16).padStart(16, '0');

// As tests/bits/state_hashes.cpp does it.
async function hashes(width, height) {
  for (const file of fs.readdirSync(`${gallery}/projects`).filter(file => file.endsWith('.bot')).sort()) {
    const name = file.slice(0, -4), live = await open(name), steps = name === 'crowd' ? 300 : 10000;
    live.to('sceneWidth', Number(width));
    live.to('sceneHeight', Number(height));
    if (live.textOf('title').includes('Ignore Barriers')) live.to('mnuIgnoreBarriers', 0);
    live.start(true);
    for (let step = 0; step < steps; ++step) {
      const before = Math.floor(live.clock() / 20);
      live.tick();
      if (Math.floor(live.clock() / 20) > before) live.fire();
    }
    console.log(`${name}, ${steps} steps: ${hashOf(live)}`);
  }
}

// What a visitor does; the test does the same with the program's own procedures.
async function drag(out) {
  const live = await open('7 a walker'), told = {first: hashOf(live)};
  live.start(true);
  live.ticks(50);
  told.ran = hashOf(live);
  live.to('gravity', 2.5);
  const [x, y] = live.draw() ?? live.listOf(3, 4);
  told.held = live.down(x + 20, y - 20, 0);
  live.move(x + 500, y - 700);
  live.ticks(5);
  live.move(x + 900, y - 300);
  live.up(x + 900, y - 300);
  live.ticks(20);
  told.dragged = hashOf(live);
  fs.writeFileSync(out, live.bytesOf('save'));
  live.goTo(49);
  told.back = hashOf(live), told.backGravity = live.get(0);
  live.goTo(75);
  told.forth = hashOf(live), told.last = live.last();
  live.down(-1e6, -1e6, 0);
  told.missed = live.down(x + 200, y - 200, 0);
  told.near = live.down(x + 1200, y - 300, 5000), live.up(x, y);
  live.down(-1e6, -1e6, 0);
  live.next(false), live.nudge(300, -200), live.step();
  told.nudged = hashOf(live), told.nudgedAt = live.at();
  live.nudge(-450, 100), live.goTo(live.at() - 1), live.goTo(live.at() + 1);
  told.pinned = hashOf(live);
  live.nudge(10, 10), live.move(5000, 1000);
  told.letGo = hashOf(live);
  live.to('gravity', 0.5);
  live.down(-1e6, -1e6, 0);
  live.start(true);
  for (let time = -1; live.clock() > time && live.at() < 30000; live.tick()) time = live.clock();
  told.turned = live.at(), live.start(false);  // by a wall
  live.reset();
  told.reset = hashOf(live), told.nodes = live.count(3);
  console.log(JSON.stringify(told));
}

await {hashes, drag}[task](...more);
