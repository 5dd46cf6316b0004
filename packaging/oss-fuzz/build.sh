#!/bin/bash -eu
# SPDX-License-Identifier: Apache-2.0
# Builds the fuzz targets of tests/fuzz for OSS-Fuzz: a program, its seeds and its dictionary for each in
# $OUT, with the libraries that the machine which runs them lacks. It has no fonts either, so that
# TextPages stays behind.

# Qt and libqpdf speak the C++ library of the system.
export CXXFLAGS="${CXXFLAGS//-stdlib=libc++/}"

build=$WORK/folioforge
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DFOLIOFORGE_FUZZ=ON \
    -DCMAKE_BUILD_RPATH="\$ORIGIN/lib" -DCMAKE_EXE_LINKER_FLAGS=-Wl,--disable-new-dtags \
    -DFOLIOFORGE_PREVIEW=OFF -DFOLIOFORGE_FUZZED_BUNDLE=/out/Folioforge.app
cmake --build "$build" --target fuzzers

# No program names the libraries that are loaded when a file needs them.
loaded=("$(dirname "$(c++ -print-file-name=libjxl.so)")"/lib{heif,jxl}.so.*)

mkdir -p "$OUT/lib" "$OUT/Folioforge.app/Contents/Resources"
cp resources/filters/*.qfilter "$OUT/Folioforge.app/Contents/Resources"

for arguments in "$build"/tests/fuzz/fuzz_*.arguments; do
    program=${arguments%.arguments}
    name=${program##*/}
    [[ $name != fuzz_TextPages ]] || continue
    cp "$program" "$OUT"
    while read -r argument; do
        case $argument in
            -dict=*) cp "${argument#-dict=}" "$OUT/$name.dict" ;;
            ?*) find "$argument" -type f -size -64k -exec zip -q -j "$OUT/${name}_seed_corpus.zip" {} + ;;
        esac
    done <"$arguments"
    printf '[libfuzzer]\nmax_len = 65536\n' >"$OUT/$name.options"
    # The C library itself is the machine's own.
    { printf '%s\n' "${loaded[@]}"; ldd "$program" "${loaded[@]}" | awk '$3 ~ /^\// { print $3 }'; } |
        sort -u | grep -Ev '/(ld-linux|libc|libm|libdl|libpthread|librt|libresolv)[.-]' |
        xargs cp -u -L -t "$OUT/lib"
done
