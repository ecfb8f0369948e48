#!/bin/sh
# Finds a better gait for the sample project "walker": the phases and the forces of its twelve muscles with
# which it comes farthest in thirty units of its time. Its legs keep their beat.
# Usage: better_walker.sh [PROJECT [BETTER]]
set -eu
project=${1:-walker.bot}
better=${2:-better_walker.bot}
set --
muscle=42
while [ "$muscle" -le 53 ]; do
    set -- "$@" --vary "link $muscle.Angle=0:360" --vary "link $muscle.Force=0.05:0.3"
    muscle=$((muscle + 1))
done
exec zentrik-cli improve "$project" "$@" --measure distance --time 30 --walls off --runs 2000 --seed 1 --out "$better"
