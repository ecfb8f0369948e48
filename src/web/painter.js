// Draws the creature as the window does, in device pixels.
const twips = 15;  // a pixel
const white = 0xFFFFFF, red = 0xFF, blue = 0xFF0000;
const css = colour => `rgb(${colour & 255},${colour >> 8 & 255},${colour >> 16 & 255})`;

// Nodes, marks and digits are drawn once, and then copied, each colour and size for itself.
let stamps = new Map(), stampedAt = 0;
function stampOf(key, side, draw) {
  let stamp = stamps.get(key);
  if (stamp) return stamp;
  if (stamps.size > 1000) stamps.clear();
  stamp = document.createElement('canvas');
  stamp.width = stamp.height = side;
  draw(stamp.getContext('2d'));
  stamps.set(key, stamp);
  return stamp;
}

const shapes = [  // radius in node radii, and whether it is round
  {radius: 1, round: true}, {radius: 1, round: false}, {radius: 1.5, round: false}, {radius: 0.5, round: true}];

function discStamp(to, shape, fill, outline) {
  const {thin} = to, radius = shapes[shape].radius * to.nodeRadius * to.unit;
  const side = 2 * Math.ceil(radius + thin / 2 + 0.5) + thin % 2;
  return stampOf(fill + 2 ** 24 * (outline + 2 ** 24 * shape), side, ink => {
    if (shapes[shape].round) {
      ink.beginPath();
      ink.arc(side / 2, side / 2, radius, 0, 2 * Math.PI);
      ink.fillStyle = css(fill);
      ink.fill();
      ink.lineWidth = thin;
      ink.strokeStyle = css(outline);
      return ink.stroke();
    }
    const size = 2 * Math.round(radius) + thin, corner = Math.round(side / 2 - size / 2);
    ink.fillStyle = css(outline);
    ink.fillRect(corner, corner, size, size);
    ink.fillStyle = css(fill);
    ink.fillRect(corner + thin, corner + thin, size - 2 * thin, size - 2 * thin);
  });
}

function paintDiscs(to, list) {
  for (let i = 0; i < list.length; i += 5) {
    const stamp = discStamp(to, list[i + 2], list[i + 3], list[i + 4]), half = stamp.width >> 1;
    const x = Math.floor(to.place(list[i])) - half, y = Math.floor(to.place(list[i + 1])) - half;
    if (x > -stamp.width && y > -stamp.width && x < scene.width && y < scene.height) pen.drawImage(stamp, x, y);
  }
}

// Lines of one pen are one path; one that is too long is slow to draw.
function paintLines(to, list, penOf) {
  const most = 200;
  let colour = -1, width = 0, lines = 0;
  const flush = () => {
    if (lines > 0) pen.stroke();
    pen.beginPath();
    lines = 0;
  };
  flush();
  pen.save();
  for (let i = 0; i < list.length; i += 7) {
    const wanted = penOf(list, i);
    if (!wanted) continue;
    if (wanted[0] !== colour || wanted[1] !== width) {
      flush();
      [colour, width] = wanted;
      pen.strokeStyle = css(colour);
      pen.lineWidth = Math.max(1, Math.round(width * to.ratio));
      pen.lineCap = width > 1 ? 'square' : 'butt';
    }
    // An even width is sharp around a border between pixels, an odd one around a pixel's middle.
    const shift = (pen.lineWidth - to.thin) % 2 === 0 ? 0 : -0.5;
    pen.moveTo(to.place(list[i]) + shift, to.place(list[i + 1]) + shift);
    pen.lineTo(to.place(list[i + 2]) + shift, to.place(list[i + 3]) + shift);
    if (++lines === most) flush();
  }
  flush();
  pen.restore();
}

function digitStamp(to, digit, ink) {
  const size = to.letters, margin = Math.ceil(0.14 * size) + 1, ascent = Math.ceil(0.9053 * size);
  return stampOf(`${digit}${ink}`, 2 * size + 2 * margin, letter => {
    letter.font = `${size}px "Liberation Sans", Arial, Helvetica, sans-serif`;
    letter.lineWidth = 0.28 * size;
    letter.lineJoin = 'round';
    letter.globalAlpha = 220 / 255;
    letter.strokeStyle = css(to.back);
    letter.strokeText(digit, margin, margin + ascent);
    letter.globalAlpha = 1;
    letter.fillStyle = css(ink);
    for (let strike = 0; strike < 2; ++strike) letter.fillText(digit, margin, margin + ascent);  // thin strokes keep dark
  });
}

function paintNumber(to, number, x, y, ink) {
  const margin = Math.ceil(0.14 * to.letters) + 1, digit = Math.round(0.556 * to.letters);
  x = Math.round(x * to.unit) + Math.round(0.278 * to.letters) - margin;
  y = Math.round(y * to.unit) - margin;
  for (const letter of String(number)) {
    pen.drawImage(digitStamp(to, letter, ink), x, y);
    x += digit;
  }
}

function paintNumbers(to, links, nodes, inks) {
  for (let i = 0; i < nodes.length; i += 4) paintNumber(to, nodes[i + 3], nodes[i] - 100, nodes[i + 1] + 100, inks.node);
  for (let i = 0; i < links.length; i += 7)
    paintNumber(to, links[i + 6], (links[i] + links[i + 2]) / 2 - 100, (links[i + 1] + links[i + 3]) / 2 + 75, inks.link);
}

// Its outlines come with the page, for a size of one.
function paintTitle(to, title, ink) {
  pen.save();
  pen.scale(to.ratio, to.ratio);
  pen.translate(title.x, title.y);
  const letters = title.path ??= new Path2D(title.outline);
  pen.lineWidth = title.halo;
  pen.lineJoin = pen.lineCap = 'round';
  pen.globalAlpha = 220 / 255;
  pen.strokeStyle = css(to.back);
  pen.stroke(letters);
  pen.globalAlpha = 1;
  pen.fillStyle = css(ink);
  pen.fill(letters);
  pen.restore();
}

function paintSprites(to, nodes, sprites) {
  for (let i = 0; i < nodes.length; i += 4) {
    const sprite = sprites[nodes[i + 2] - 1];
    if (!sprite?.picture.complete) continue;
    const width = Math.round(sprite.width * to.ratio), height = Math.round(sprite.height * to.ratio);
    pen.drawImage(sprite.picture, Math.floor(to.place(nodes[i]) - width / 2), Math.floor(to.place(nodes[i + 1]) - height / 2),
                  width, height);
  }
}

// `page` has the sprites, the title and the inks of texts.
function paint(live, page) {
  const get = name => live.get(live.row(name)), ratio = scene.width * twips / get('sceneWidth');
  const unit = ratio / twips, thin = Math.max(1, Math.round(ratio)), middle = thin % 2 / 2;
  const to = {ratio, unit, thin, nodeRadius: Math.max(0, get('NodeRadius')), back: get('BackColor') & white,
    letters: Math.max(1, Math.round(11 * ratio)), place: value => Math.floor(value * unit + 0.5) + middle};
  if (stampedAt !== ratio) stamps.clear(), stampedAt = ratio;
  live.draw();
  const links = live.listOf(0, 7), nodes = live.listOf(3, 4), plain = [get('LinkColor') & white, 1];
  const pens = [plain, [blue, 1], [red, 4]], animator = [blue, 2];
  pen.fillStyle = css(to.back);
  pen.fillRect(0, 0, scene.width, scene.height);
  if (get('line')) paintLines(to, links, (list, i) => pens[list[i + 4]]);
  if (get('activeline')) paintLines(to, links, (list, i) => list[i + 5] && animator);
  if (get('ball')) paintDiscs(to, live.listOf(1, 5));
  paintDiscs(to, live.listOf(2, 5));
  const numbers = get('numbers');
  if (numbers) paintNumbers(to, links, nodes, page.inks);
  const ink = !numbers || nodes.length === 0 ? 'title' : links.length > 0 ? 'link' : 'node';
  if (get('mnuDisplayTitle') && page.title) paintTitle(to, page.title, page.inks[ink]);
  if (get('sprite') && (live.running() || get('mnuAllowSprites'))) paintSprites(to, nodes, page.sprites);
}
