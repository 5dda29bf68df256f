#!/usr/bin/env python3
"""Writes the tables of radios and programs that packets tell.

    make_devices.py TOCALLS.YAML > src/aprs/device_table.cpp

TOCALLS.YAML is the public index of device identifiers (see data/README.md). Needs python3-yaml; clang-format the result.
"""
import sys

import yaml

HEAD = """\
// Written by tools/devices/make_devices.py from the public index of APRS device identifiers; do not edit.
// SPDX-License-Identifier: CC-BY-SA-2.0
// aprs-deviceid, kept by Hessu, OH7LZB, and its contributors: see data/README.md.

#include "aprs/device_table.h"

#include <array>

namespace ruvenmark::aprs {

namespace {
"""

TAIL = """
} // namespace

std::span<const DestinationDevice> DestinationDevices()
{
    return kDestinations;
}

std::span<const MicEDevice> MicEDevices()
{
    return kMicE;
}

} // namespace ruvenmark::aprs
"""

# Radios that were sold and heard, but are not in the index.
EXTRA_MIC_E = [(":4", "SCS P4dragon DR-7400"), (":8", "SCS P4dragon DR-7800"), ("\\v", "Hamhud"), ("/9", "Argent")]


def name(entry):
    vendor, model = (str(entry.get(key, "")).strip().replace("Unknown", "") for key in ("vendor", "model"))
    if not vendor or not model or vendor == model:
        return model or vendor
    # People and teams are set off, so that their names do not run into the product's.
    return f"{vendor}: {model}" if set(vendor) & set(", ") else f"{vendor} {model}"


def literal(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def prefix_size(pattern):
    wild = [i for i, c in enumerate(pattern) if c in "?*n"]
    return wild[0] if wild else len(pattern)


def rank(pattern):
    """Patterns of the same beginning stand together, the most telling first."""
    fixed = sum(c not in "?*n" for c in pattern)
    return (pattern[: prefix_size(pattern)], -fixed, pattern.count("*"), pattern.count("?"), pattern)


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        index = yaml.safe_load(file)
    tocalls = sorted({t["tocall"]: t for t in index["tocalls"] if name(t)}.values(), key=lambda t: rank(t["tocall"]))
    mic_e = [(m["suffix"], name(m)) for m in index["mice"]] + EXTRA_MIC_E
    print(HEAD)
    print("constexpr auto kDestinations = std::to_array<DestinationDevice>({")
    for t in tocalls:
        print(f"    {{{literal(t['tocall'])}, {prefix_size(t['tocall'])}, {literal(name(t))}}},")
    print("});\n\nconstexpr auto kMicE = std::to_array<MicEDevice>({")
    for suffix, text in mic_e:
        first, last = ("'\\" + c + "'" if c in "'\\" else f"'{c}'" for c in suffix)
        print(f"    {{{first}, {last}, {literal(text)}}},")
    print("});")
    print(TAIL, end="")


if __name__ == "__main__":
    main()
