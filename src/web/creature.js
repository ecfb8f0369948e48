// The module and what it says, without anything of a browser.
async function creatureOf(bytes, wants) {
  // Chance begins alike in every page.
  const {instance} = await WebAssembly.instantiate(bytes, {wasi_snapshot_preview1: {clock_time_get: () => 0}});
  const live = {...instance.exports};
  live._initialize();
  const give = bytes => {
    const place = live.room(bytes.length);  // may move the memory
    new Uint8Array(live.memory.buffer, place, bytes.length).set(bytes);
  };
  const letters = new TextEncoder();
  // Bytes of what one of the module's sayings says; as a text.
  live.bytesOf = saying => {
    live[saying]();
    return new Uint8Array(live.memory.buffer, live.text(), live.textSize()).slice();
  };
  live.textOf = saying => new TextDecoder().decode(live.bytesOf(saying));
  live.rows = JSON.parse(live.textOf('settings'));
  live.row = name => live.rows.findIndex(row => row.name === name);
  for (const name of wants.sprites) {
    give(letters.encode(name));
    live.addSprite();
  }
  // `values` are those of the settings, in their order; gives what is wrong with the project.
  live.open = (project, values) => {
    give(project);
    if (!live.load()) return new TextDecoder().decode(new Uint8Array(live.memory.buffer, live.text(), live.textSize()));
    values.forEach((value, i) => live.set(i, value));
    live.begin();
    return '';
  };
  // A list of the picture, so many numbers to an entry.
  live.listOf = (which, size) => new Float32Array(live.memory.buffer, live.list(which), live.count(which) * size);
  return live;
}
