const film = JSON.parse(part('film').textContent);

// The numbers of the film: groups of seven bits, the lowest first. A 0 is followed by how many more there are.
function reader(text) {
  const bytes = Uint8Array.from(atob(text), letter => letter.charCodeAt(0));
  let at = 0, zeros = 0;
  const number = () => {
    let value = 0, unit = 1;
    for (;; unit *= 128) {
      const byte = bytes[at++];
      value += (byte & 127) * unit;
      if (byte < 128) return value;
    }
  };
  return () => {
    if (zeros > 0) return zeros--, 0;
    const value = number();
    if (value === 0) return zeros = number(), 0;
    return value % 2 === 0 ? value / 2 : -(value + 1) / 2;
  };
}

// Each picture's places in pixels: x and y of a point after the other.
const pictures = [];
{
  const move = reader(film.moves);
  for (const chapter of film.chapters) {
    const tenths = new Int32Array(2 * chapter.points);
    for (let n = 0; n < chapter.pictures; ++n) {
      for (let i = 0; i < tenths.length; ++i) tenths[i] += move();
      pictures.push({chapter, at: Float32Array.from(tenths, tenth => tenth / 10)});
    }
  }
}
const outlines = film.outlines.map(data => new Path2D(data));
const images = film.images.map(data => {
  const image = new Image();
  image.onload = () => show(shown);
  image.src = data;
  return image;
});

let shown = 0;       // picture
let playing = false;
let begun = 0;       // when the first picture was due, milliseconds

function useStyle([stroke, width, cap, fill]) {
  pen.strokeStyle = stroke;
  pen.lineWidth = width;
  pen.lineCap = cap;
  pen.lineJoin = cap === 'round' ? 'round' : 'miter';
  pen.fillStyle = fill;
  return {stroke: stroke !== '', fill: fill !== ''};
}

// One function a kind of shape, given its list from the measures on; each returns how many it used.
const kinds = [
  function rectangle(x, y, style, list, i) {
    if (style.fill) pen.fillRect(x, y, list[i] / 10, list[i + 1] / 10);
    if (style.stroke) pen.strokeRect(x, y, list[i] / 10, list[i + 1] / 10);
    return 2;
  },
  function line(x, y, style, list, i, toX, toY) {
    pen.beginPath();
    pen.moveTo(x, y);
    pen.lineTo(toX, toY);
    pen.stroke();
    return 0;
  },
  function ellipse(x, y, style, list, i) {
    pen.beginPath();
    pen.ellipse(x, y, list[i] / 10, list[i + 1] / 10, 0, 0, 2 * Math.PI);
    if (style.fill) pen.fill();
    if (style.stroke) pen.stroke();
    return 2;
  },
  function outline(x, y, style, list, i) {
    pen.translate(x, y);
    if (style.fill) pen.fill(outlines[list[i]]);
    if (style.stroke) pen.stroke(outlines[list[i]]);
    pen.translate(-x, -y);
    return 1;
  },
  function image(x, y, entry, list, i) {
    if (images[entry].complete) pen.drawImage(images[entry], x, y, list[i] / 10, list[i + 1] / 10);
    return 2;
  },
];
const LINE = 1, IMAGE = 4;

function draw({chapter, at}) {
  const scale = scene.width / film.width, list = chapter.shapes;
  pen.setTransform(1, 0, 0, 1, 0, 0);
  pen.clearRect(0, 0, scene.width, scene.height);
  pen.setTransform(scale, 0, 0, scale, 0, 0);
  let style = {}, styled = -1, place = 0;
  for (let i = 0; i < list.length;) {
    const kind = list[i], entry = list[i + 1];
    const p = 2 * chapter.places[place++], q = kind === LINE ? 2 * chapter.places[place++] : p;
    if (kind !== IMAGE && entry !== styled) style = useStyle(film.styles[styled = entry]);
    i += 2 + kinds[kind](at[p], at[p + 1], kind === IMAGE ? entry : style, list, i + 2, at[q], at[q + 1]);
  }
}

function show(picture) {
  shown = picture;
  draw(pictures[shown]);
  const seconds = n => (n / film.rate).toFixed(1);
  time.value = shown;
  time.setAttribute('aria-valuetext', seconds(shown) + ' seconds');
  part('clock').textContent = seconds(shown) + ' / ' + seconds(pictures.length) + ' s';
}

function tick(now) {
  if (!playing) return;
  // A frame's time may lie just before the moment at which it was asked for.
  const due = Math.floor(Math.max(0, now - begun) * film.rate / 1000) % pictures.length;
  if (due !== shown) show(due);
  requestAnimationFrame(tick);
}

function setPlaying(on) {
  playing = on;
  showPlaying(on);
  begun = performance.now() - shown * 1000 / film.rate;
  if (on) requestAnimationFrame(tick);
}

// Goes to a picture and stays there.
function goTo(picture) {
  setPlaying(false);
  show(Math.max(0, Math.min(pictures.length - 1, picture)));
}

const keys = {
  ' ': () => setPlaying(!playing),
  ArrowLeft: event => goTo(shown - (event.shiftKey ? film.rate : 1)),
  ArrowRight: event => goTo(shown + (event.shiftKey ? film.rate : 1)),
  Home: () => goTo(0),
  End: () => goTo(pictures.length - 1),
  f: toggleFull,
};
obeyKeys(keys);
play.onclick = () => setPlaying(!playing);
scene.onclick = play.onclick;
time.oninput = () => goTo(Number(time.value));
function fit() {
  fitScene(film.width, film.height);
  draw(pictures[shown]);
}
addEventListener('resize', fit);

// A time in the address, as in "walker.html#t=2.5", is where the film stands.
function obeyAddress() {
  const wanted = /^#t=([\d.]+)$/.exec(location.hash);
  if (wanted) goTo(Math.round(wanted[1] * film.rate));
  return wanted !== null;
}
addEventListener('hashchange', obeyAddress);

time.max = pictures.length - 1;
fit();
show(0);
setPlaying(!obeyAddress() && !matchMedia('(prefers-reduced-motion: reduce)').matches);
