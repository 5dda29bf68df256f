"""Which pictogram stands for which key, number and action; colours by family.

A pictogram is the name of a glyph of the icon font, or "own:NAME" for one of shapes.py, or "digit:N".
"""

# On white and on a dark window (#232629) alike these have a contrast of at least 3 to 1; make_icons.py checks it.
TREE_COLOURS = {
    "folder": "#b98022",
    "fact": "#6f8191",
    "place": "#c2563a",
    "vehicle": "#2f83d0",
    "boat": "#128a9c",
    "air": "#8368d8",
    "home": "#3f9347",
    "radio": "#c2503f",
    "net": "#3a86b8",
    "weather": "#2688c4",
    "hazard": "#dc4a3c",
    "service": "#a06a2c",
    "person": "#bb4f92",
    "mark": "#8d6fc4",
}

TREE = {
    "Triangle": ("triangle", "mark"), "WindDir": ("own:wind-vane", "fact"), "Balloon": ("airballoon", "air"),
    "Bicycle": ("bike", "vehicle"), "Clock": ("clock", "fact"), "Eye": ("eye", "person"), "House": ("home", "home"),
    "Status": ("message-text", "folder"), "Grid": ("grid", "fact"), "Sail": ("own:sailboat", "boat"),
    "Snowmobile": ("own:snowmobile", "vehicle"), "Park": ("pine-tree", "home"), "Phone": ("phone", "service"),
    "Plane": ("airplane", "air"), "Rain": ("own:rain", "weather"), "Pressure": ("gauge", "fact"),
    "Speed": ("speedometer", "fact"), "Volumn": ("volume-high", "fact"), "Gain": ("signal", "fact"),
    "Info": ("information", "fact"), "Water": ("water", "fact"), "Default": ("pin", "place"),
    "Temperature": ("thermometer", "fact"), "Arrow": ("arrow-top-right", "fact"), "Parallel": ("web", "fact"),
    "Course": ("compass", "fact"), "Letterw": ("own:letter-w", "weather"), "Position": ("map-marker", "place"),
    "Report": ("file-document", "net"), "Circle": ("own:ring", "mark"), "Shuttle": ("rocket", "air"),
    "Church": ("church", "home"), "Digi": ("radio-tower", "radio"), "HFGateway": ("router-wireless", "radio"),
    "Yagi": ("own:yagi", "radio"), "Hotel": ("hotel", "service"), "Car": ("car", "vehicle"), "Jogger": ("run", "person"),
    "Jeep": ("own:jeep", "vehicle"), "Wheeler18": ("truck", "vehicle"), "Person": ("account", "person"),
    "Motorcycle": ("motorbike", "vehicle"), "Van": ("own:van", "vehicle"), "NTS": ("sitemap", "net"),
    "Ship": ("ferry", "boat"), "TCP": ("wan", "net"), "Weather": ("own:sun-cloud", "weather"),
    "Antenna": ("own:whip", "radio"), "NWS": ("radar", "weather"), "Path": ("vector-polyline", "fact"),
    "Truck": ("own:pickup", "vehicle"), "Closed": ("folder", "folder"), "Open": ("own:folder-open", "folder"),
    "Unknown": ("help-circle", "mark"), "Question": ("comment-question-outline", "fact"), "Bus": ("bus", "vehicle"),
    "Station": ("radio-handheld", "radio"), "Received": ("download", "fact"), "Sender": ("account-circle", "fact"),
    "State": ("flag", "fact"), "Fire": ("fire", "hazard"), "GasStation": ("gas-station", "service"),
    "Lightning": ("flash", "folder"), "PostOffice": ("email", "service"), "Radiation": ("radioactive", "hazard"),
    "RoadClosed": ("own:no-entry", "hazard"), "Explosion": ("own:explosion", "hazard"),
    "PhoneBooth": ("phone-classic", "service"), "Snow": ("own:snowflake", "weather"), "Detour": ("directions", "folder"),
    "CrashSite": ("alert", "hazard"), "Hurricane": ("own:hurricane", "hazard"),
    "Earthquake": ("own:earthquake", "hazard"), "Races": ("own:civil-defence", "net"),
    "Restroom": ("human-male-female", "service"), "Tornado": ("own:tornado", "hazard"),
    "FirstAid": ("own:first-aid", "hazard"), "CoastGuard": ("own:lifebuoy", "boat"), "Up": ("arrow-up-bold", "fact"),
    "RV": ("own:motorhome", "vehicle"),
    **{f"Num{n}": (f"numeric-{n}-box", "mark") for n in range(9)},
}

# Badge colour and outline: discs move, squares stand, diamonds warn.
MAP_FAMILIES = {
    "place": ("#c0392b", "disc"),
    "vehicle": ("#1f6fbf", "disc"),
    "boat": ("#0b7f92", "disc"),
    "air": ("#6a4fc3", "disc"),
    "person": ("#ab3d83", "disc"),
    "home": ("#2f7d38", "square"),
    "radio": ("#ad3b2b", "square"),
    "net": ("#2c6f9e", "square"),
    "weather": ("#1778b5", "square"),
    "service": ("#8a5a1e", "square"),
    "hazard": ("#d2322a", "diamond"),
    "traffic": ("#c36a00", "diamond"),
    "mark": ("#5d4a8f", "disc"),
    "own": ("#0d6f86", "square"),
    "lost": ("#6b737b", "disc"),
}

# The words that lead to each number stand behind it.
MAP = {
    1: ("pin", "place"),                        # Default
    14: ("eye", "person"),                      # Eye
    25: ("own:ring", "mark"),                   # Circle
    58: ("triangle", "mark"),                   # Triangle
    64: ("radioactive", "hazard"),              # Radiation
    66: ("own:lifebuoy", "boat"),               # CoastGuard
    67: ("rocket", "air"),                      # Shuttle
    68: ("airballoon", "air"),                  # Balloon
    69: ("own:no-entry", "hazard"),             # RoadClosed
    70: ("crosshairs", "lost"),                 # the GPS receiver without a fix
    73: ("radar", "weather"),                   # NWS
    77: ("own:yagi", "radio"),                  # Yagi
    79: ("home", "home"),                       # House
    80: ("ferry", "boat"),                      # Ship
    81: ("truck", "vehicle"),                   # Wheeler18
    82: ("car", "vehicle"),                     # Car
    85: ("own:motorhome", "vehicle"),           # RV
    86: ("own:pickup", "vehicle"),              # Truck
    87: ("own:van", "vehicle"),                 # Van
    89: ("airplane", "air"),                    # Plane
    91: ("own:sailboat", "boat"),               # Sail
    92: ("pine-tree", "home"),                  # Park
    93: ("run", "person"),                      # Jogger
    96: ("own:tornado", "hazard"),              # Tornado
    98: ("own:rain", "weather"),                # Rain
    99: ("own:snowflake", "weather"),           # Snow
    100: ("flash", "traffic"),                  # Lightning
    102: ("own:hurricane", "hazard"),           # Hurricane
    103: ("own:earthquake", "hazard"),          # Earthquake
    104: ("hotel", "service"),                  # Hotel
    111: ("access-point", "own"),               # TCP and the operator's own station
    114: ("router-wireless", "radio"),          # HFGateway
    119: ("own:cross", "hazard-square"),        # Church and FirstAid
    142: ("gas-station", "service"),            # GasStation
    148: ("own:snowmobile", "vehicle"),         # Snowmobile
    152: ("own:whip", "radio"),                 # Antenna
    158: ("directions-fork", "traffic"),        # Detour
    168: ("own:two-wheeler", "vehicle"),        # Bicycle and Motorcycle
    169: ("radio-tower", "radio"),              # Digi
    180: ("bus", "vehicle"),                    # Bus
    181: ("own:jeep", "vehicle"),               # Jeep
    184: ("phone-classic", "service"),          # PhoneBooth
    189: ("email", "service"),                  # PostOffice
    195: ("exclamation", "hazard"),             # CrashSite
    196: ("own:explosion", "hazard"),           # Explosion
    199: ("own:civil-defence", "net"),          # Races
    200: ("crosshairs-gps", "own-disc"),        # the GPS receiver with a fix
    206: ("human-male-female", "service"),      # Restroom
    241: ("sitemap", "net"),                    # NTS
    250: ("own:sun-cloud", "weather"),          # Weather
    **{207 + n: (f"digit:{n}", "mark") for n in range(1, 9)},
}
MAP_FAMILIES["hazard-square"] = ("#d2322a", "square")
MAP_FAMILIES["own-disc"] = ("#0d6f86", "disc")

ACTIONS = {
    "new": "file-outline", "open": "own:folder-open", "save": "content-save", "print": "printer", "cut": "content-cut",
    "copy": "content-copy", "paste": "content-paste", "delete": "delete", "view-left": "own:split-left",
    "view-messages": "email", "view-map": "map", "send-position": "map-marker-radius", "send-message": "message-text",
    "help": "help-circle", "zoom-in": "magnify-plus", "zoom-out": "magnify-minus", "pan-north": "own:pan-north",
    "pan-south": "own:pan-south", "pan-east": "own:pan-east", "pan-west": "own:pan-west", "fit-world": "own:world-fit",
    "find": "magnify", "directions": "directions", "pointer": "cursor-default", "crosshair": "crosshairs",
    "load-stations": "file-import", "stop": "stop-circle", "filter": "filter", "track": "routes", "region": "earth",
    "style": "palette", "layers": "layers", "tiles-online": "cloud-download", "circle": "map-marker-circle",
    "close": "close", "settings": "settings", "connect": "lan-connect", "connect-tnc": "radio-tower",
    "connect-server": "server-network", "connect-gps": "satellite-variant", "connect-wx": "weather-partlycloudy",
    "copy-map": "image", "info": "information",
    "sort": "sort-alphabetical", "font": "format-size", "tool-bar": "wrench", "pause": "pause", "play": "play",
    "track-line": "vector-polyline", "stations": "table-large",
}
