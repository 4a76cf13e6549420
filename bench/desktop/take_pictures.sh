#!/bin/sh
# take_pictures.sh FOLDER
# Pictures of everything that a player meets, for every screen and ratio that we look at: as
# FOLDER/SCREEN/NAME.png. Builds what it needs in build/release.
set -eu
cd "$(dirname "$0")/../.."
folder=$(mkdir -p "$1" && cd "$1" && pwd)
cmake --preset release >"$folder/build.log"
cmake --build --preset release --target pictures >>"$folder/build.log"
pictures=$PWD/build/release/bench/pictures
display=$PWD/tools/testing/with_display.sh

# pose NAME WIDTHxHEIGHT SETTING=VALUE...
pose() {
  name=$1 size=$2
  shift 2
  mkdir -p "$folder/$name"
  echo "$name"
  (cd "$folder/$name" && "$display" "$size" env "$@" "$pictures" 2>toolkit.log)
}

for size in 640x480 800x600 1366x768 1920x1080 1080x1920 3840x2160; do
  pose $size $size
done
for ratio in 1.25 1.5 2; do
  pose 1920x1080-at-$ratio 1920x1080 QT_SCALE_FACTOR=$ratio
done
pose dark 1366x768 QT_STYLE_OVERRIDE=Adwaita-Dark GTK_THEME=Adwaita:dark QT_QPA_PLATFORMTHEME=gtk3
pose german 1366x768 LC_ALL=de_DE.UTF-8
pose arabic 1366x768 LC_ALL=ar_EG.UTF-8
