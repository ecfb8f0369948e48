'use strict';
// What all pages that play have in common: the picture's size, its controls and keys.
const part = id => document.getElementById(id);
const player = part('player'), scene = part('scene'), time = part('time'), play = part('play');
const pen = scene.getContext('2d');

// As wide as the window; in full screen, and where `room` says so, no higher than there is room for.
function fitScene(width, height, room) {
  if (document.fullscreenElement) room = innerHeight - part('controls').offsetHeight;
  const wide = Math.min(document.documentElement.clientWidth, (room ?? Infinity) * width / height);
  scene.style.width = wide + 'px';
  scene.style.height = wide * height / width + 'px';
  scene.width = Math.round(wide * devicePixelRatio);
  scene.height = Math.round(wide * height / width * devicePixelRatio);
}

function showPlaying(on) {
  player.classList.toggle('playing', on);
  player.classList.toggle('still', !on);
  play.setAttribute('aria-label', on ? 'Pause' : 'Play');
}

function toggleFull() {
  if (document.fullscreenElement) document.exitFullscreen();
  else player.requestFullscreen();
}

part('full').onclick = toggleFull;

// A field and a button take the keys that are theirs.
function obeyKeys(keys) {
  addEventListener('keydown', event => {
    const act = keys[event.key.length === 1 ? event.key.toLowerCase() : event.key];
    if (!act || event.ctrlKey || event.altKey || event.metaKey) return;
    if (event.key === ' ' && event.target.matches?.('button, summary, input:not(#time)')) return;
    if (event.target.matches?.('input:not(#time)') && event.key !== 'Escape') return;
    event.preventDefault();
    act(event);
  });
}
