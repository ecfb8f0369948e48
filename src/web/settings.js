// Settings: a switch or a slider each, made from the module's table.
const fields = [];
const shown = value => Number(value.toPrecision(7));
function showSettings() {
  for (const field of fields) field.show();
}
function change(i, value) {
  if (!Number.isFinite(value)) return;
  live.set(i, value);
  showSettings();
  redraw();
}

function element(kind, values) {
  return Object.assign(document.createElement(kind), values);
}

function makeSwitch(row, i) {
  const box = element('input', {type: 'checkbox', onchange: () => change(i, box.checked ? 1 : 0)});
  const label = element('label');
  label.append(box, ' ' + row.label);
  part('switches').append(label);
  fields.push({show: () => box.checked = live.get(i) !== 0});
}

function makeSlider(row, i) {
  const name = row.label, id = 'slider-' + row.name;
  const slider = element('input', {type: 'range', id, min: row.least, max: row.most, step: row.by,
    oninput: () => change(i, slider.valueAsNumber)});
  const number = element('input', {type: 'number', step: 'any', ariaLabel: name + ', number',
    onchange: () => change(i, number.valueAsNumber)});
  const back = element('button', {textContent: '↺', title: 'As it was: ' + shown(page.values[i]), ariaLabel: 'Reset ' + name,
    onclick: () => change(i, page.values[i])});
  const line = element('div', {className: 'row'});
  line.append(element('label', {textContent: name, htmlFor: id}), slider, number, back);
  part('sliders').append(line);
  fields.push({show: () => slider.value = number.value = shown(live.get(i))});
}

function makeSettings() {
  live.rows.forEach((row, i) => {
    if (row.slider) makeSlider(row, i);
    else if (row.label && (row.name !== 'sprite' || page.sprites.length > 0)) makeSwitch(row, i);
  });
  showSettings();
}
