"""Pictograms drawn for this program, where the icon font has none that fits.

Each is an SVG fragment on a 24 by 24 grid that fills 2 to 22; `{c}` stands for its colour.
"""


def _stroke(path, width):
    return (f'<path d="{path}" fill="none" stroke="{{c}}" stroke-width="{width}"'
            ' stroke-linecap="round" stroke-linejoin="round"/>')


def _fill(path):
    return f'<path d="{path}" fill="{{c}}" fill-rule="evenodd"/>'


def _wheels(*places):
    return "".join(f'<circle cx="{x}" cy="18" r="2.4" fill="{{c}}"/>' for x in places)


# The lower edge of a car body from x = 22 back to 2, with arches over wheels at 17 and 7.
_ARCHES = "V18H20.4A3.4 3.4 0 0 0 13.6 18H10.4A3.4 3.4 0 0 0 3.6 18H2Z"


# Digits as strokes in a box 6 wide and 10 high.
DIGITS = [
    "M3 0C5 0 6 2 6 5S5 10 3 10 0 8 0 5 1 0 3 0Z",
    "M.8 2.2 3.4 0V10",
    "M.2 2.6C.4 1 1.5 0 3 0 4.7 0 5.8 1.1 5.8 2.7 5.8 5 .9 7 .2 10H6",
    "M.3 1.8C.8.7 1.8 0 3 0 4.6 0 5.7 1 5.7 2.4 5.7 3.8 4.6 4.7 3 4.7 4.8 4.7 6 5.7 6 7.3 6 8.9 4.8 10 3 10 1.6 10 .5 9.3 0 8.1",
    "M4.4 10V0L0 6.9H6",
    "M5.4 0H1.1L.6 4.6C1.2 4 2 3.7 2.9 3.7 4.8 3.7 6 5 6 6.8 6 8.7 4.8 10 2.9 10 1.6 10 .5 9.4 0 8.3",
    "M5.2 1C4.6.4 3.9 0 3.1 0 1.1 0 0 2.2 0 5.6 0 8.4 1.1 10 3 10 4.8 10 6 8.7 6 6.8 6 5 4.8 3.8 3.1 3.8 1.6 3.8.4 4.7 0 6.2",
    "M0 0H6L2.2 10",
    "M3 4.6C1.5 4.6.5 3.7.5 2.3S1.5 0 3 0 5.5 1 5.5 2.3 4.5 4.6 3 4.6 0 5.6 0 7.3 1.2 10 3 10 6 9 6 7.3 4.8 4.6 3 4.6Z",
]


def digit(number, height, centre, colour):
    """A digit `height` units high about (centre, centre)."""
    scale = height / 10
    left = centre - 3 * scale if number != 1 else centre - 2.4 * scale
    top = centre - height / 2
    return (f'<path d="{DIGITS[number]}" transform="translate({left:.2f} {top:.2f}) scale({scale:.2f})" fill="none"'
            f' stroke="{colour}" stroke-width="2" stroke-linecap="round" stroke-linejoin="round"/>')


SHAPES = {
    "sailboat": _fill("M11 2V16H3.5C6 11.5 9 7 11 2ZM13 5C17 8 19 12 19.5 16H13ZM2 18H22C21.3 20.5 19.5 22 17 22H7C4.5 22 2.7 20.5 2 18Z"),
    "snowmobile": (_fill("M2 13 8 12 10 7.5H13.5L13 9.5H11.6L11 12H14L17.5 9.5 20.5 15.5H16.5L19 19H20.5Q21.5 19 22 18V20"
                         "Q21.3 21 20 21H12.5V19H16.6L14.2 15.8H2.5Z")
                   + _fill("M4.5 17H11Q13 17 13 19T11 21H4.5Q2.5 21 2.5 19T4.5 17Z")),
    "pickup": _fill(f"M2 12H10V6H15.2L19 11.2 22 12{_ARCHES} M12 7.8V11H16.7L14.4 7.8Z") + _wheels(7, 17),
    "van": _fill(f"M2 8Q2 6.5 3.5 6.5H13.5Q15 6.5 15.8 7.7L18.6 12 21 12.8Q22 13.2 22 14.5{_ARCHES} M11.5 8.3V12H16.6L14.4 8.6Q14.2"
                 " 8.3 13.8 8.3Z") + _wheels(7, 17),
    "motorhome": _fill(f"M2 5Q2 3.5 3.5 3.5H21Q22 3.5 22 4.5V7.5Q22 8.5 21 8.5H19L21 12.5 22 13.5{_ARCHES} M4 6.5V11H9.5V6.5Z"
                       " M15.5 9.5V13H19L17.3 9.5Z") + _wheels(7, 17),
    "jeep": _fill("M3.5 4.5Q3.5 3 5 3H19Q20.5 3 20.5 4.5V10H22V17.5H20V20.5H16.5V17.5H7.5V20.5H4V17.5H2V10H3.5Z"
                  " M5.5 5V9.5H18.5V5Z M5.8 11.8A1.9 1.9 0 1 0 5.8 15.6 1.9 1.9 0 1 0 5.8 11.8Z"
                  " M18.2 11.8A1.9 1.9 0 1 0 18.2 15.6 1.9 1.9 0 1 0 18.2 11.8Z"
                  " M9.3 11.5H10.7V16H9.3Z M11.5 11.5H12.7V16H11.5Z M13.4 11.5H14.8V16H13.4Z"),
    "folder-open": _fill("M4 4H9.5L11.5 6H19Q20.8 6 20.8 7.8V9H6.5Q5.2 9 4.8 10.2L2.6 17.5Q2 17 2 16V6Q2 4 4 4Z"
                         " M7 10.6H23L20.4 18.6Q20 20 18.4 20H4Z"),
    "explosion": _fill("M12 1.5 14 7 18.5 3.5 17.5 9 22.5 9.5 18.5 12.8 22 17 16.5 16.5 16 22.5 12 18 8 22.5 7.5 16.5 2 17 5.5 12.8"
                       " 1.5 9.5 6.5 9 5.5 3.5 10 7Z"),
    "snowflake": _stroke("M12 2.5V21.5M3.8 7.2 20.2 16.8M20.2 7.2 3.8 16.8"
                         "M9.2 4 12 6.8 14.8 4M9.2 20 12 17.2 14.8 20M4.2 10.7 8 9.7 7 5.9M19.8 13.3 16 14.3 17 18.1"
                         "M19.8 10.7 16 9.7 17 5.9M4.2 13.3 8 14.3 7 18.1", 1.9),
    "hurricane": _fill("M12 5.5C18 5.5 19.5 10 18.5 14 17.5 18.5 13 22 6.5 22 9.5 21 10.6 19.6 11 18.5 6 18.2 4.5 14 5.5 10"
                       " 6.5 5.5 11 2 17.5 2 14.5 3 13.2 4.4 12.6 5.5Z M12 9A3 3 0 1 0 12 15 3 3 0 1 0 12 9Z"),
    "tornado": _stroke("M3.5 4H20.5M5.5 8H18.5M8.5 12H17M11 16H16M12.5 20H14", 2.6),
    "earthquake": _stroke("M2.5 13H6L8 5 11 20 14 8 16 15 17.5 13H21.5", 2.2),
    "civil-defence": _fill("M12 2A10 10 0 1 0 12 22 10 10 0 1 0 12 2Z M12 5 18.6 16.4H5.4Z"),
    "lifebuoy": _fill("M12 2A10 10 0 1 0 12 22 10 10 0 1 0 12 2Z M12 8.2A3.8 3.8 0 1 1 12 15.8 3.8 3.8 0 1 1 12 8.2Z"
                      " M15.5 3.7 14.2 6.6Q16.4 7.5 17.4 9.8L20.3 8.5Q19 5.1 15.5 3.7Z M20.3 15.5 17.4 14.2Q16.5 16.4 14.2 17.4L15.5"
                      " 20.3Q18.9 19 20.3 15.5Z M8.5 20.3 9.8 17.4Q7.6 16.5 6.6 14.2L3.7 15.5Q5 18.9 8.5 20.3Z"
                      " M3.7 8.5 6.6 9.8Q7.5 7.6 9.8 6.6L8.5 3.7Q5.1 5 3.7 8.5Z"),
    "cross": _fill("M9 2H15V9H22V15H15V22H9V15H2V9H9Z"),
    "first-aid": _fill("M5 2H19Q22 2 22 5V19Q22 22 19 22H5Q2 22 2 19V5Q2 2 5 2Z M10 5.5V10H5.5V14H10V18.5H14V14H18.5V10H14V5.5Z"),
    "yagi": _stroke("M2.5 8H21.5M4.5 3V13M9 4V12M13.5 4.6V11.4M18 5.2V10.8M12 8V22", 2),
    "whip": (_stroke("M12 10V22M7.5 22H16.5", 2.2) + '<circle cx="12" cy="8" r="2.4" fill="{c}"/>'
             + _stroke("M8 4.2Q6.6 5.8 6.6 8T8 11.8M16 4.2Q17.4 5.8 17.4 8T16 11.8"
                       "M4.9 2.2Q3 4.8 3 8T4.9 13.8M19.1 2.2Q21 4.8 21 8T19.1 13.8", 1.9)),
    "letter-w": _fill("M5 2H19Q22 2 22 5V19Q22 22 19 22H5Q2 22 2 19V5Q2 2 5 2Z M4.6 6.5 7.6 18H10.2L12 11.2 13.8 18H16.4L19.4 6.5"
                      "H16.9L15 14.4 13.1 7.5H10.9L9 14.4 7.1 6.5Z"),
    "wind-vane": (_fill("M2 5H14V2L22 7 14 12V9H2L4.5 7Z") + _stroke("M10 11V22M5.5 22H14.5", 2)),
    "ring": '<circle cx="12" cy="12" r="8" fill="none" stroke="{c}" stroke-width="4"/>',
    "two-wheeler": (_stroke("M5.5 16.5 9 9.5H15L18.5 16.5M9 9.5 12.5 16.5 15 9.5M12.5 16.5H5.5M7 7H10.2M14 6H16.6L17.5 7.5", 1.9)
                    + '<circle cx="5.5" cy="16.5" r="3.6" fill="none" stroke="{c}" stroke-width="1.9"/>'
                    + '<circle cx="18.5" cy="16.5" r="3.6" fill="none" stroke="{c}" stroke-width="1.9"/>'),
    "no-entry": _fill("M12 2A10 10 0 1 0 12 22 10 10 0 1 0 12 2Z M5.5 10H18.5V14H5.5Z"),
    "rain": (_fill("M6.5 14A4.5 4.5 0 0 1 6.2 5.1 6 6 0 0 1 17.8 5.6 4.3 4.3 0 0 1 17.7 14Z")
             + _stroke("M7.5 16.5 6 21M12.3 16.5 10.8 21M17 16.5 15.5 21", 2.2)),
    "sun-cloud": (_fill("M8.5 21A4.2 4.2 0 0 1 8.2 12.7 5.6 5.6 0 0 1 18.8 13.1 4 4 0 0 1 18.7 21Z")
                  + _fill("M4.6 14.6A5.4 5.4 0 1 1 13.6 8.3 7.2 7.2 0 0 0 7 11.3 5.6 5.6 0 0 0 4.6 14.6Z")
                  + _stroke("M9 1.5V2.2M3 4.2 3.5 4.7M15 4.2 14.5 4.7M1.2 10.2H1.8", 1.8)),
    "pan-north": _fill("M12 5 21 18H3Z"),
    "pan-south": _fill("M12 19 3 6H21Z"),
    "pan-west": _fill("M5 12 18 3V21Z"),
    "pan-east": _fill("M19 12 6 21V3Z"),
    "split-left": _fill("M4 3H20Q22 3 22 5V19Q22 21 20 21H4Q2 21 2 19V5Q2 3 4 3Z M10.5 5V19H20V5Z"
                        " M4 6.5V8H8.5V6.5Z M4 10V11.5H8.5V10Z M4 13.5V15H8.5V13.5Z"),
    "world-fit": (_stroke("M3 8V3H8M16 3H21V8M21 16V21H16M8 21H3V16", 2)
                  + '<circle cx="12" cy="12" r="5" fill="none" stroke="{c}" stroke-width="1.8"/>'
                  + _stroke("M7 12H17M12 7Q9.5 12 12 17M12 7Q14.5 12 12 17", 1.4)),
}

# The program's own icon on a 64 by 64 grid: a map pin that transmits.
PROGRAM = """<svg xmlns="http://www.w3.org/2000/svg" width="256" height="256" viewBox="0 0 64 64">
<defs>
<linearGradient id="pin" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#22aec4"/><stop offset="1" stop-color="#0e6584"/></linearGradient>
</defs>
<ellipse cx="32" cy="59.5" rx="12" ry="3" fill="#000000" fill-opacity=".2"/>
<path d="M32 61C25 49 14 40 14 24A18 18 0 0 1 50 24C50 40 39 49 32 61Z" fill="url(#pin)"/>
<circle cx="32" cy="24" r="10" fill="#ffffff"/>
<circle cx="32" cy="24" r="5" fill="#ee8b0e"/>
<path d="M8.5 6A29 29 0 0 0 8.5 42M55.5 6A29 29 0 0 1 55.5 42" fill="none" stroke="#ee8b0e" stroke-width="6" stroke-linecap="round"/>
</svg>
"""
