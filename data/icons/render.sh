#!/bin/sh
# Renders the pictures that the program carries, after a drawing was changed. Needs rsvg-convert and icotool.
set -eu
cd "$(dirname "$0")"
rsvg-convert -w 16 -h 16 warhost-16.svg -o warhost-16.png
for size in 32 48 256; do rsvg-convert -w $size -h $size warhost.svg -o warhost-$size.png; done
for size in 108 216; do rsvg-convert -w $size -h $size emblem.svg -o emblem-$size.png; done
for size in 16 32 48 256; do rsvg-convert -w $size -h $size army.svg -o army-$size.png; done
for name in warhost army; do
    icotool --create --output ../windows/$name.ico $name-16.png $name-32.png $name-48.png --raw=$name-256.png
done
