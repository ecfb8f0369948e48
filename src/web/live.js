// The page of a creature: what a visitor does with it, and when it is drawn.
const take = part('take'), said = part('said');
let page, live;              // what comes with the project, and the module
let playing = false;
let seen = true;             // the picture is in sight
let asked = false;           // for a frame
let stale = true;            // something is to be drawn
let before = 0, owed = 0;    // the last frame's time; steps that are due
let told = 0;                // when the controls were shown last
let held = null;             // where the pointer holds a node, twips

async function unpacked(text) {
  const bytes = Uint8Array.from(atob(text), letter => letter.charCodeAt(0));
  const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream('deflate'));
  return new Uint8Array(await new Response(stream).arrayBuffer());
}

function say(text) {
  if (said.textContent !== text) said.textContent = text;
}

// What the controls show; the settings only where something else may have changed them.
function showTime() {
  time.max = live.last();
  time.value = live.at();
  const clock = live.clock().toFixed(2);
  if (part('clock').textContent === clock) return;
  part('clock').textContent = clock;
  time.setAttribute('aria-valuetext', `Step ${live.at()} of ${live.last()}, time ${clock}`);
}

function ask() {
  if (asked || !seen || !live) return;
  asked = true;
  requestAnimationFrame(frame);
}

function redraw() {
  stale = true;
  ask();
}

// As many steps as the timer would have made, but no more than a frame has time for.
function stepOn(now) {
  owed = Math.min(owed + (now - before) / live.period(), 250 / live.period() + 1);
  before = now;
  if (owed < 1) return;
  if (held) live.move(...held);
  const until = performance.now() + 12;
  for (; owed >= 1 && live.running(); --owed) {
    live.tick();
    if (performance.now() > until) owed = Math.min(owed, 1);
  }
  stale = true;
  if (live.running()) return;
  setPlaying(false);
  say(live.textOf('message'));
}

function frame(now) {
  asked = false;
  if (playing) stepOn(now);
  if (stale) {
    stale = false;
    paint(live, page);
    // Numbers that run faster than eyes would cost more than the picture.
    if (!playing || now - told > 150) showTime(), told = now;
  }
  if (playing) ask();
}

function setPlaying(on) {
  live.start(on);
  playing = live.running() === 1;
  showPlaying(playing);
  before = performance.now();
  owed = 0;
  if (playing) say('');
  redraw();
}

function goTo(step) {
  live.goTo(step);
  setPlaying(false);
  showSettings();
}

function stepOnce() {
  setPlaying(false);
  live.step();
  say(live.textOf('message'));
  redraw();
}

function reset() {
  live.reset();
  showSettings();
  redraw();
}

function fire() {
  if (!playing) setPlaying(true);
  live.fire();
  redraw();
}

function takeHome() {
  const link = document.createElement('a');
  link.download = page.name + '.bot';
  link.href = URL.createObjectURL(new Blob([live.bytesOf('save')], {type: 'application/x-zentrik-project'}));
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), 60000);
}

// The pointer, in twips. Only a press that holds a node keeps the page from scrolling under a finger.
function placeOf(event) {
  const box = scene.getBoundingClientRect(), scale = live.get(live.row('sceneWidth')) / box.width;
  return [(event.clientX - box.left) * scale, (event.clientY - box.top) * scale, scale];
}
function press(event) {
  if (event.button !== 0 || !event.isPrimary) return;
  const [x, y, scale] = placeOf(event);
  held = live.down(x, y, (event.pointerType === 'mouse' ? 8 : 22) * scale) ? [x, y] : null;
  if (held) scene.setPointerCapture(event.pointerId);
  if (live.selected() > 0) say('Node ' + live.selected());
  redraw();
}
function move(event) {
  const [x, y] = placeOf(event);
  if (held) held = [x, y];
  else if (event.pointerType !== 'mouse') return;
  live.move(x, y);
  redraw();
}
function release(event) {
  if (!held) return;
  const [x, y] = placeOf(event);
  live.up(x, y);
  held = null;
  redraw();
}

function selectNode(back) {
  live.next(back);
  scene.focus();
  if (live.selected() > 0) say('Node ' + live.selected());
  redraw();
}
function letGo() {
  live.down(-1e6, -1e6, 0);
  say('');
  redraw();
}
// Arrows move the selected node while the picture has the focus, else through time.
function arrow(dx, dy) {
  return event => {
    const far = event.shiftKey ? 10 : 1;
    if (document.activeElement === scene && live.selected() > 0) live.nudge(dx * far * 2 * twips, dy * far * 2 * twips);
    else if (dx !== 0) goTo(live.at() + dx * (event.shiftKey ? 25 : 1));
    redraw();
  };
}

function listen() {
  play.onclick = () => setPlaying(!playing);
  time.oninput = () => goTo(time.valueAsNumber);
  part('back').onclick = () => goTo(live.at() - 1);
  part('step').onclick = stepOnce;
  part('reset').onclick = reset;
  part('fire').onclick = fire;
  part('fire').hidden = live.shoots() === 0;
  take.onclick = takeHome;
  scene.onpointerdown = press;
  scene.onpointermove = move;
  scene.onpointerup = scene.onpointercancel = release;
  scene.addEventListener('touchstart', event => held && event.preventDefault(), {passive: false});
  obeyKeys({' ': play.onclick, '.': stepOnce, Home: reset, End: () => goTo(live.last()), x: fire, f: toggleFull,
    s: () => change(live.row('slow'), 1 - live.get(live.row('slow'))), n: event => selectNode(event.shiftKey),
    Escape: letGo, ArrowLeft: arrow(-1, 0), ArrowRight: arrow(1, 0), ArrowUp: arrow(0, -1), ArrowDown: arrow(0, 1)});
  addEventListener('resize', fit);
  new IntersectionObserver(entries => {
    seen = entries.at(-1).isIntersecting;
    before = performance.now();
    if (seen) redraw();
  }).observe(scene);
}

// In another page's frame all of the picture and its controls are to be seen.
function fit() {
  const width = live.get(live.row('sceneWidth')), height = live.get(live.row('sceneHeight'));
  const others = part('controls').offsetHeight + part('actions').offsetHeight + 40;
  fitScene(width, height, Math.max(120, self === top ? innerHeight - 60 : innerHeight - others));
  redraw();
}

async function open() {
  if (typeof DecompressionStream === 'undefined' || typeof WebAssembly === 'undefined')
    throw new Error('This page wants a newer browser: Chromium 95, Firefox 113 or Safari 16.4, or a later one.');
  const [data, project, module] =
    await Promise.all([part('page').textContent, part('project').textContent, moduleText].map(unpacked));
  page = JSON.parse(new TextDecoder().decode(data));
  for (const sprite of page.sprites) {
    sprite.picture = new Image();
    sprite.picture.onload = redraw;
    sprite.picture.src = sprite.data;
  }
  live = await creatureOf(module, {sprites: page.sprites.map(sprite => sprite.name)});
  const problem = live.open(project, page.values);
  if (problem) throw new Error('The project of this page is damaged. ' + problem);
  player.classList.toggle('framed', self !== top);
  part('settings').open = self === top && innerWidth >= 700;
  makeSettings();
  listen();
  fit();
  setPlaying(!matchMedia('(prefers-reduced-motion: reduce)').matches);
}
const opened = open().catch(problem => {
  said.setAttribute('role', 'alert');
  say(problem.message);
});
