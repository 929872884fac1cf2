#!/usr/bin/env bash
# Remakes the guide's pictures: each printed sheet rendered from the PDF the
# program writes, and each form with its preview, taken from the real
# windows (under Xvfb where it is installed).
#
#   tools/make_pictures.sh BUILD_DIR OUT_DIR
set -euo pipefail
build=$(readlink -f "$1")
out=$2
mkdir -p "$out"
out=$(readlink -f "$out")
work=$(mktemp -d /tmp/gridpages-pictures-XXXXXX)
trap 'rm -rf "$work"' EXIT

# name|script lines separated by ';'
sheets=(
  "triangles|click cmdTriangle;click cmdPrintIt"
  "squares|click cmdSquares;click cmdPrintIt"
  "multiplication-chart|click cmdSquares;check chkMult 1;click cmdPrintIt"
  "puzzle|click cmdSquares;click cmdStart"
  "centered-squares|click cmdSquares2;click cmdPrintIt"
  "hexagons|click cmdHexagon;click cmdPrintIt"
  "inscribed-hexagons|click cmdHexagon;click cmdHexInscribed"
  "target|click cmdHexagon;click cmdTarget"
  "parabola|click cmdParabola;click cmdGraph"
  "half-cube|click cmdHalfCube;click cmdPrintIt"
  "rhombic-cube|click cmdRhomb;click cmdPrintIt"
  "one-sixth-cube|click Command1;click cmdPrintIt"
  "rhombic-dodecahedron|click cmdDodecaRombus;click cmdPrintIt"
  "great-dodecagon|click cmdGreatDodeca;click cmdPrintIt"
  "stick-curves|click cmdStickCurves;check chkDouble 1;click cmdPrintIt"
  "string-art|click cmdString2;click Command1;menu mnuOcta1;answer 6;answer 6;click cmdPrintIt"
)
for entry in "${sheets[@]}"; do
  name=${entry%%|*}
  tr ';' '\n' <<<"${entry#*|}" > "$work/$name.txt"
  rm -rf "$work/pdf"
  QT_QPA_PLATFORM=offscreen "$build/gridpages" --script "$work/$name.txt" --pdf "$work/pdf" --seed 7
  pdftoppm -r 40 -png -singlefile "$work/pdf/sheet-0001.pdf" "$out/sheet-$name"
done

# The forms, as the windowed program shows them: at 100% into the guide, and
# at 200% into the build folder to check that every control stays legible;
# of those, the focus ring and Explode It go into the guide too.
shots() {
  if command -v xvfb-run >/dev/null; then
    xvfb-run -a -s "-screen 0 2800x2200x24" "$build/gridpages_shots" "$1"
  else
    QT_QPA_PLATFORM=offscreen "$build/gridpages_shots" "$1"
  fi
}
shots "$out"
rm -rf "$build/pictures-200"
QT_SCALE_FACTOR=2 shots "$build/pictures-200"
cp "$build/pictures-200/focus-ring.png" "$out/focus-ring-200.png"
cp "$build/pictures-200/form-explode-it.png" "$out/form-explode-it-200.png"
echo "pictures: $(ls "$out" | wc -l) files in $out, the forms at 200% in $build/pictures-200"
