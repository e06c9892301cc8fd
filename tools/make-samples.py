#!/usr/bin/env python3
"""Writes the samples in resources/samples, byte for byte the same every time.

materials.tnt comes from the classic table of OpenGL materials: ambient, diffuse and specular
color, exponent of the highlight (0..128) and, for gems, opacity.  The nine values are made so
that color times percentage gives the table's constants back:

  color        what a surface in full light shows, ambient plus diffuse; where a channel of the
                sum is above 1, the whole sum divided by it
  ambient       mean of the ambient color as a share of that color's mean
  diffuse       the same with the diffuse color
  specular      the brightest channel of the specular color
  shininess     the exponent, 128 being 100
  transparency  what is missing to full opacity
  emission      0: none of these materials shines by itself

web-colors.tnt holds the 148 named colors of CSS, by hue, all with one satin surface.

powder-coats.gpl and anodized-aluminium.csv are palettes to import, as other programs would write
them: the one has names and red, green, blue alone, the other groups and all nine values.

  tools/make-samples.py            writes the samples
  tools/make-samples.py --check    writes nothing; names what would change and fails
"""

import argparse
import pathlib
import sys

FOLDER = pathlib.Path(__file__).resolve().parent.parent / "resources" / "samples"

# name: ambient, diffuse, specular (red, green, blue each), exponent, opacity
MATERIALS = {
    "Metals": {
        "Brass": ((0.329412, 0.223529, 0.027451), (0.780392, 0.568627, 0.113725),
                  (0.992157, 0.941176, 0.807843), 27.8974, 1),
        "Bronze": ((0.2125, 0.1275, 0.054), (0.714, 0.4284, 0.18144),
                   (0.393548, 0.271906, 0.166721), 25.6, 1),
        "Polished bronze": ((0.25, 0.148, 0.06475), (0.4, 0.2368, 0.1036),
                            (0.774597, 0.458561, 0.200621), 76.8, 1),
        "Chrome": ((0.25, 0.25, 0.25), (0.4, 0.4, 0.4), (0.774597, 0.774597, 0.774597), 76.8, 1),
        "Copper": ((0.19125, 0.0735, 0.0225), (0.7038, 0.27048, 0.0828),
                   (0.256777, 0.137622, 0.086014), 12.8, 1),
        "Polished copper": ((0.2295, 0.08825, 0.0275), (0.5508, 0.2118, 0.066),
                            (0.580594, 0.223257, 0.0695701), 51.2, 1),
        "Gold": ((0.24725, 0.1995, 0.0745), (0.75164, 0.60648, 0.22648),
                 (0.628281, 0.555802, 0.366065), 51.2, 1),
        "Polished gold": ((0.24725, 0.2245, 0.0645), (0.34615, 0.3143, 0.0903),
                          (0.797357, 0.723991, 0.208006), 83.2, 1),
        "Pewter": ((0.105882, 0.058824, 0.113725), (0.427451, 0.470588, 0.541176),
                   (0.333333, 0.333333, 0.521569), 9.84615, 1),
        "Silver": ((0.19225, 0.19225, 0.19225), (0.50754, 0.50754, 0.50754),
                   (0.508273, 0.508273, 0.508273), 51.2, 1),
        "Polished silver": ((0.23125, 0.23125, 0.23125), (0.2775, 0.2775, 0.2775),
                            (0.773911, 0.773911, 0.773911), 89.6, 1),
    },
    "Plastics": {
        "Black plastic": ((0, 0, 0), (0.01, 0.01, 0.01), (0.5, 0.5, 0.5), 32, 1),
        "Cyan plastic": ((0, 0.1, 0.06), (0, 0.509804, 0.509804),
                         (0.501961, 0.501961, 0.501961), 32, 1),
        "Green plastic": ((0, 0, 0), (0.1, 0.35, 0.1), (0.45, 0.55, 0.45), 32, 1),
        "Red plastic": ((0, 0, 0), (0.5, 0, 0), (0.7, 0.6, 0.6), 32, 1),
        "White plastic": ((0, 0, 0), (0.55, 0.55, 0.55), (0.7, 0.7, 0.7), 32, 1),
        "Yellow plastic": ((0, 0, 0), (0.5, 0.5, 0), (0.6, 0.6, 0.5), 32, 1),
    },
    "Rubber": {
        "Black rubber": ((0.02, 0.02, 0.02), (0.01, 0.01, 0.01), (0.4, 0.4, 0.4), 10, 1),
        "Cyan rubber": ((0, 0.05, 0.05), (0.4, 0.5, 0.5), (0.04, 0.7, 0.7), 10, 1),
        "Green rubber": ((0, 0.05, 0), (0.4, 0.5, 0.4), (0.04, 0.7, 0.04), 10, 1),
        "Red rubber": ((0.05, 0, 0), (0.5, 0.4, 0.4), (0.7, 0.04, 0.04), 10, 1),
        "White rubber": ((0.05, 0.05, 0.05), (0.5, 0.5, 0.5), (0.7, 0.7, 0.7), 10, 1),
        "Yellow rubber": ((0.05, 0.05, 0), (0.5, 0.5, 0.4), (0.7, 0.7, 0.04), 10, 1),
    },
    "Gems": {
        "Emerald": ((0.0215, 0.1745, 0.0215), (0.07568, 0.61424, 0.07568),
                    (0.633, 0.727811, 0.633), 76.8, 0.55),
        "Jade": ((0.135, 0.2225, 0.1575), (0.54, 0.89, 0.63),
                 (0.316228, 0.316228, 0.316228), 12.8, 0.95),
        "Obsidian": ((0.05375, 0.05, 0.06625), (0.18275, 0.17, 0.22525),
                     (0.332741, 0.328634, 0.346435), 38.4, 0.82),
        "Pearl": ((0.25, 0.20725, 0.20725), (1, 0.829, 0.829),
                  (0.296648, 0.296648, 0.296648), 11.264, 0.922),
        "Ruby": ((0.1745, 0.01175, 0.01175), (0.61424, 0.04136, 0.04136),
                 (0.727811, 0.626959, 0.626959), 76.8, 0.55),
        "Turquoise": ((0.1, 0.18725, 0.1745), (0.396, 0.74151, 0.69102),
                      (0.297254, 0.30829, 0.306678), 12.8, 0.8),
    },
}

# name and color in hexadecimal digits, alternating
WEB_COLORS = {
    "Pinks": "pink ffc0cb lightpink ffb6c1 hotpink ff69b4 deeppink ff1493 palevioletred db7093"
             " mediumvioletred c71585",
    "Reds": "lightsalmon ffa07a salmon fa8072 darksalmon e9967a lightcoral f08080 indianred cd5c5c"
            " crimson dc143c firebrick b22222 darkred 8b0000 red ff0000",
    "Oranges": "orangered ff4500 tomato ff6347 coral ff7f50 darkorange ff8c00 orange ffa500",
    "Yellows": "yellow ffff00 lightyellow ffffe0 lemonchiffon fffacd lightgoldenrodyellow fafad2"
               " papayawhip ffefd5 moccasin ffe4b5 peachpuff ffdab9 palegoldenrod eee8aa"
               " khaki f0e68c darkkhaki bdb76b gold ffd700",
    "Browns": "cornsilk fff8dc blanchedalmond ffebcd bisque ffe4c4 navajowhite ffdead wheat f5deb3"
              " burlywood deb887 tan d2b48c rosybrown bc8f8f sandybrown f4a460 goldenrod daa520"
              " darkgoldenrod b8860b peru cd853f chocolate d2691e saddlebrown 8b4513"
              " sienna a0522d brown a52a2a maroon 800000",
    "Greens": "darkolivegreen 556b2f olive 808000 olivedrab 6b8e23 yellowgreen 9acd32"
              " limegreen 32cd32 lime 00ff00 lawngreen 7cfc00 chartreuse 7fff00 greenyellow adff2f"
              " springgreen 00ff7f mediumspringgreen 00fa9a lightgreen 90ee90 palegreen 98fb98"
              " darkseagreen 8fbc8f mediumaquamarine 66cdaa mediumseagreen 3cb371 seagreen 2e8b57"
              " forestgreen 228b22 green 008000 darkgreen 006400",
    "Cyans": "aqua 00ffff cyan 00ffff lightcyan e0ffff paleturquoise afeeee aquamarine 7fffd4"
             " turquoise 40e0d0 mediumturquoise 48d1cc darkturquoise 00ced1 lightseagreen 20b2aa"
             " cadetblue 5f9ea0 darkcyan 008b8b teal 008080",
    "Blues": "lightsteelblue b0c4de powderblue b0e0e6 lightblue add8e6 skyblue 87ceeb"
             " lightskyblue 87cefa deepskyblue 00bfff dodgerblue 1e90ff cornflowerblue 6495ed"
             " steelblue 4682b4 royalblue 4169e1 blue 0000ff mediumblue 0000cd darkblue 00008b"
             " navy 000080 midnightblue 191970",
    "Purples": "lavender e6e6fa thistle d8bfd8 plum dda0dd violet ee82ee orchid da70d6"
               " fuchsia ff00ff magenta ff00ff mediumorchid ba55d3 mediumpurple 9370db"
               " blueviolet 8a2be2 darkviolet 9400d3 darkorchid 9932cc darkmagenta 8b008b"
               " purple 800080 rebeccapurple 663399 indigo 4b0082 darkslateblue 483d8b"
               " slateblue 6a5acd mediumslateblue 7b68ee",
    "Whites": "white ffffff snow fffafa honeydew f0fff0 mintcream f5fffa azure f0ffff"
              " aliceblue f0f8ff ghostwhite f8f8ff whitesmoke f5f5f5 seashell fff5ee beige f5f5dc"
              " oldlace fdf5e6 floralwhite fffaf0 ivory fffff0 antiquewhite faebd7 linen faf0e6"
              " lavenderblush fff0f5 mistyrose ffe4e1",
    "Greys": "gainsboro dcdcdc lightgray d3d3d3 lightgrey d3d3d3 silver c0c0c0 darkgray a9a9a9"
             " darkgrey a9a9a9 gray 808080 grey 808080 dimgray 696969 dimgrey 696969"
             " lightslategray 778899 lightslategrey 778899 slategray 708090 slategrey 708090"
             " darkslategray 2f4f4f darkslategrey 2f4f4f black 000000",
}
SATIN = [100, 100, 50, 30, 0, 0]

# name and color in hexadecimal digits
POWDER_COATS = {
    "Paper white": "f1f0ea", "Cream": "efe6cf", "Sand": "d3c3a0", "Clay": "a9876a",
    "Pebble": "c4c5c1", "Workshop gray": "969c9e", "Machine gray": "6d7477", "Graphite": "3f4447",
    "Deep black": "17181a", "Ice blue": "b5cfd8", "Harbor blue": "3f6f94", "Press blue": "1d3f6e",
    "Mint": "a8cdb4", "Bench green": "4f7f5f", "Moss": "4b5639", "Guard yellow": "f2c01d",
    "Lever orange": "e8701a", "Stop red": "b8201f", "Brick": "8a3b2d", "Plum": "5a3048",
}
# color in hexadecimal digits by name; the values behind red, green, blue by group
ANODIZED_ALUMINIUM = {
    "Satin": {"Natural": "c9cbcc", "Champagne": "cdb88f", "Light bronze": "9b7f5c",
              "Dark bronze": "4d3b2c", "Black": "26272a", "Blue": "2f5d9c", "Red": "a62c35",
              "Green": "3f7a52"},
    "Bright": {"Natural": "d8dadb", "Gold": "d1a94a", "Copper": "b7683f", "Black": "1b1c1f",
               "Blue": "2468b5", "Violet": "5f3f96", "Red": "bd2531", "Turquoise": "1e9aa0"},
}
ANODIZED_SURFACES = {"Satin": [60, 90, 45, 25, 0, 0], "Bright": [50, 80, 85, 60, 0, 0]}
TABLE_HEAD = ("group,name,red,green,blue,ambient,diffuse,specular,shininess,transparency,"
              "emission")


def percent(share):
    return min(100, int(share * 100 + 0.5))


def material_values(ambient, diffuse, specular, exponent, opacity):
    lit = [a + d for a, d in zip(ambient, diffuse)]
    lit = [channel / max(1, *lit) for channel in lit]
    shares = (sum(ambient) / sum(lit), sum(diffuse) / sum(lit), max(specular), exponent / 128,
              1 - opacity)
    return [int(channel * 255 + 0.5) for channel in lit] + [percent(s) for s in shares] + [0]


def materials():
    return {group: {name: material_values(*constants) for name, constants in colors.items()}
            for group, colors in MATERIALS.items()}


def web_colors():
    library = {}
    for group, words in WEB_COLORS.items():
        pairs = words.split()
        library[group] = {name: list(bytes.fromhex(digits)) + SATIN
                          for name, digits in zip(pairs[0::2], pairs[1::2])}
    return library


def library_file(name, groups):
    """Bytes of a ".tnt" file: a header, the groups, then the colors, each line in quotes."""
    count = len(groups) + sum(len(colors) for colors in groups.values())
    records = [f"D#{name}=0D:{count}"]
    keys = {group: f"0DG{number}" for number, group in enumerate(groups, 1)}
    records += [f"G#{group}={key}" for group, key in keys.items()]
    for group, colors in groups.items():
        for color, values in colors.items():
            records.append(f"E#{color}={keys[group]}:" + "÷".join([color, *map(str, values)]))
    return "".join(f'"{record}"\r\n' for record in records).encode("cp1252")


def gimp_palette(name, colors):
    """Bytes of a ".gpl" file."""
    lines = ["{:3} {:3} {:3}\t{}".format(*bytes.fromhex(digits), color)
             for color, digits in colors.items()]
    return "\n".join(["GIMP Palette", f"Name: {name}", "Columns: 0", "#", *lines, ""]).encode()


def table(groups, surfaces):
    """Bytes of a ".csv" file; surfaces: the values behind red, green, blue by group."""
    rows = [",".join(map(str, [group, color, *bytes.fromhex(digits), *surfaces[group]]))
            for group, colors in groups.items() for color, digits in colors.items()]
    return "\r\n".join([TABLE_HEAD, *rows, ""]).encode("utf-8-sig")


def samples():
    return {"materials.tnt": library_file("Materials", materials()),
            "web-colors.tnt": library_file("Web colors", web_colors()),
            "powder-coats.gpl": gimp_palette("Powder coats", POWDER_COATS),
            "anodized-aluminium.csv": table(ANODIZED_ALUMINIUM, ANODIZED_SURFACES)}


def write_stale(folder, write):
    """Names of the samples that are not as this script makes them."""
    stale = []
    for name, content in samples().items():
        path = folder / name
        if not path.is_file() or path.read_bytes() != content:
            stale.append(name)
            if write:
                path.write_bytes(content)
    return stale


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true", help="only tell what would change")
    check = parser.parse_args().check
    stale = write_stale(FOLDER, write=not check)
    for name in stale:
        print(f"{name}: {'differs' if check else 'written'}")
    return 1 if check and stale else 0


if __name__ == "__main__":
    sys.exit(main())
