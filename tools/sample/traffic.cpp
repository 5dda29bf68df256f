// What is neither a home nor under way: objects and items, messages, telemetry, gated packets, oddities, and the lines
// that cannot be read.

#include "sample_day.h"

#include <array>

namespace ruvenmark::sample {

namespace {

using packet_text::Digits;
using packet_text::Join;

std::string Padded(std::string_view name)
{
    std::string text(name);
    text.resize(9, ' ');
    return text;
}

std::string NetHead(SampleDay& day, std::string_view call)
{
    return Join({call, ">APRS42,", day.InternetPath(), ":"});
}

void AddRepeaters(SampleDay& day)
{
    for (int i = 0; i < 64; ++i) {
        const Town& town = Towns()[static_cast<std::size_t>(i) * Towns().size() / 64];
        const std::string call = Join({town.prefix, "QTH-10"});
        const std::string frequency = Join({"14", Digits(day.Between(5, 7), 1), ".", Digits(day.Below(40) * 25, 3)});
        const std::string place = packet_text::PlainPosition(day.Near(town, 8), "/r");
        const std::string text =
            Join({frequency, "MHz T", Digits(day.Between(67, 203), 3), " -060 R", Digits(day.Between(20, 60), 2),
                  "k Net ", day.Chance(50) ? "Mon" : "Thu", " 2000"});
        const int period = 6 * kHour;
        for (int at = day.Below(period); at < kDay; at += period)
            if (i % 5 == 0)
                day.Add(at, Join({NetHead(day, call), ")", frequency, "!", place, text}));
            else
                day.Add(at, Join({NetHead(day, call), ";", Padded(Join({frequency, "-R"})), "*111111z", place, text}));
    }
}

struct Happening {
    std::string_view name, town, symbol, text;
    int begin, end; // Hours; at the end it is cancelled.
};
constexpr auto kHappenings = std::to_array<Happening>({
    {"MARATHON", "Denver", "/[", "City marathon, net on 146.640", 12, 19},
    {"HAMFEST", "Huntsville", "\\h", "Flea market until 4, talk-in 146.940", 13, 21},
    {"FIELDDAY", "Dayton", "/;", "Club field day, come and see us", 8, 23},
    {"ROADWORK", "Austin", "\\=", "Northbound lanes closed", 6, 18},
    {"ACCIDENT", "Atlanta", "\\'", "Two lanes blocked", 14, 16},
    {"FIRSTAID", "Phoenix", "\\M", "First aid post, mile 12", 11, 20},
    {"SHELTER", "Tulsa", "\\c", "Storm shelter open", 19, 23},
    {"TORNADO 1", "Wichita", "\\t", "Moving NE 30 mph", 20, 22},
    {"STORM", "Omaha", "\\J", "Lightning, heavy rain", 17, 21},
    {"CHECKPT 3", "Bozeman", "\\3", "Checkpoint three, water", 12, 22},
    {"BERGWACHT", "Innsbruck", "\\M", "Einsatzleitung Übung", 7, 15},
    {"FLOHMARKT", "Nürnberg", "\\h", "Afu-Flohmarkt Halle 3, Einweisung 145,500", 7, 14},
    {"PEILEN", "Würzburg", "/;", "Fuchsjagd Start 10 Uhr", 8, 13},
    {"STAU A8", "Ulm", "\\=", "Stau 5 km", 14, 17},
    {"RADRENNEN", "Graz", "/b", "Begleitfunk 433,450", 9, 15},
    {"FETE", "Dijon", "\\h", "Brocante radio, entrée libre", 8, 17},
    {"RAID VTT", "Clermont-Ferrand", "/b", "Assistance radio 145.550", 7, 16},
    {"MARATON", "Zaragoza", "/[", "Maratón, puesto de control", 8, 14},
    {"RALLYE", "Torino", "\\>", "Prova speciale 4", 9, 18},
    {"PIKNIK", "Kraków", "/;", "Piknik krótkofalarski", 9, 18},
    {"KIRPPIS", "Lahti", "\\h", "Kerhon kirppis", 8, 14},
    {"LEADER", "Boulder", "\\[", "Hike leader", 14, 22},
});

void AddHappenings(SampleDay& day)
{
    for (const Happening& happening : kHappenings) {
        const Town& town = TownNamed(happening.town);
        const std::string call = day.NewCall(town.prefix);
        Place place = day.Near(town, 4);
        const int end = happening.end * kHour + day.Below(20) * kMinute;
        for (int at = happening.begin * kHour + day.Below(kHour); at < end; at += 45 * kMinute) {
            day.Add(at, Join({NetHead(day, call), ";", Padded(happening.name), "*", SampleDay::ZuluStamp(at),
                              packet_text::PlainPosition(place, happening.symbol), happening.text}));
            if (happening.name == "TORNADO 1" || happening.name == "LEADER")
                place = day.Near(place, 3);
        }
        for (int i = 0; i < 2; ++i) { // A cancellation is sent more than once.
            day.Add(end + i * 5 * kMinute,
                    Join({NetHead(day, call), ";", Padded(happening.name), "_", SampleDay::ZuluStamp(end),
                          packet_text::PlainPosition(place, happening.symbol)}));
        }
    }
}

void AddConversation(SampleDay& day, int start)
{
    constexpr auto kOpenings = std::to_array<std::string_view>(
        {"Are you on the repeater tonight?", "Good morning, how is the weather up there?", "Parts arrived, thank you!",
         "Kommst du zum Treffen?", "Test von unterwegs", "Arrive in ten minutes", "Tu es où ?", "QSL via bureau ok?"});
    constexpr auto kAnswers =
        std::to_array<std::string_view>({"Yes, at 8", "Fine, 18C and sun", "ok", "Ja, bis gleich", "Copied, 73",
                                         "See you there", "À bientôt", "Later, driving"});
    const Town& town = day.AnyTown();
    const std::string one = Join({day.NewCall(town.prefix), "-9"});
    const std::string two = day.NewCall(town.prefix);
    const int number = day.Between(1, 90);
    const bool bReplyAck = day.Chance(25);
    const std::string id = bReplyAck ? Join({Digits(number, 2), "}"}) : std::to_string(number);
    day.Add(start, Join({NetHead(day, one), ":", Padded(two), ":", day.Pick(kOpenings), "{", id}));
    if (day.Chance(20)) {
        day.Add(start + 31, Join({NetHead(day, two), ":", Padded(one), ":rej", std::to_string(number)}));
        return;
    }
    if (bReplyAck) {
        day.Add(start + 40,
                Join({NetHead(day, two), ":", Padded(one), ":", day.Pick(kAnswers), "{7A}", Digits(number, 2)}));
        day.Add(start + 44, Join({NetHead(day, one), ":", Padded(two), ":ack7A}"}));
        return;
    }
    day.Add(start + 3, Join({NetHead(day, two), ":", Padded(one), ":ack", std::to_string(number)}));
    day.Add(start + 65,
            Join({NetHead(day, two), ":", Padded(one), ":", day.Pick(kAnswers), "{", std::to_string(number + 1)}));
    day.Add(start + 70, Join({NetHead(day, one), ":", Padded(two), ":ack", std::to_string(number + 1)}));
}

void AddMessages(SampleDay& day)
{
    for (int i = 0; i < 34; ++i)
        AddConversation(day, day.Below(kDay - kHour));
    constexpr auto kBulletins = std::to_array<std::string_view>(
        {"BLN1     :Net tonight 2000 local on the hill repeater", "BLN2     :Club meeting Friday, all welcome",
         "BLNA     :Digi on the mountain is off until Monday", "BLN3WX   :Thunderstorms expected after noon",
         "BLN1     :Ortsrunde fällt heute aus"});
    for (int i = 0; i < 20; ++i) {
        const Town& town = day.AnyTown();
        day.Add(day.Below(kDay), Join({NetHead(day, Join({town.prefix, "QTH-10"})), ":", day.Pick(kBulletins)}));
    }
    const std::string server = NetHead(day, "N0QRM");
    day.Add(19 * kHour, Join({server, ":NWS-WARN :142000z,TORNADO,KS_SEDGWICK {QRM01"}));
    day.Add(6 * kHour, Join({NetHead(day, "N0QRM-5"), ":N0QRN-7  :?APRSP"}));
}

void AddTelemetry(SampleDay& day)
{
    for (std::size_t i = 5; i < Towns().size(); i += 17) {
        const Town& town = Towns()[i];
        const std::string call = Join({day.NewCall(town.prefix), "-2"});
        const std::string head = NetHead(day, call);
        const int start = day.Between(10, 50) * kMinute;
        const std::string to = Padded(call);
        day.Add(start, Join({head, ":", to, ":PARM.Vin,Rx1h,Dg1h,Temp,Fan,Door,Mains"}));
        day.Add(start + 4, Join({head, ":", to, ":UNIT.Volt,Pkt,Pkt,deg.C,rpm,open,on"}));
        day.Add(start + 8, Join({head, ":", to, ":EQNS.0,0.075,0,0,10,0,0,10,0,0,0.5,-64,0,10,0"}));
        day.Add(start + 12, Join({head, ":", to, ":BITS.11111111,Hill site ", town.name}));
        int sequence = day.Below(900);
        for (int at = start + kMinute; at < kDay; at += 70 * kMinute) {
            day.Add(at, Join({head, "T#", Digits(++sequence, 3), ",", Digits(day.Between(160, 184), 3), ",",
                              Digits(day.Below(60), 3), ",", Digits(day.Below(40), 3), ",",
                              Digits(day.Between(150, 220), 3), ",", Digits(day.Below(255), 3),
                              day.Chance(90) ? ",01000000" : ",11000000"}));
        }
    }
}

// Packets that a gate took from the Internet to the air; the station inside is the one that counts.
void AddThirdParty(SampleDay& day)
{
    for (int i = 0; i < 16; ++i) {
        const Town& town = day.AnyTown();
        const std::string gate = Join({town.prefix, "QTH-10"});
        const std::string inner = Join({day.NewCall(town.prefix), ">APRS42,TCPIP,", gate, "*:"});
        const std::string text =
            i % 2 == 0 ? Join({"=", packet_text::PlainPosition(day.Near(town), "/-"), "gated to RF"})
                       : Join({":", Padded(day.NewCall(town.prefix)), ":Hello from the net{", std::to_string(i)});
        day.Add(day.Below(kDay),
                Join({gate, ">APXG05,", town.prefix, "QSO-1*,WIDE2-1,qAR,", town.prefix, "QSO-10:}", inner, text}));
    }
}

void AddOddities(SampleDay& day)
{
    constexpr auto kInfos = std::to_array<std::string_view>({
        "?APRS?",
        "?WX?",
        "{Qxraw data of an experiment",
        "{{ test format",
        ",test of the new radio",
        "[IO91SX] hilltop node",
        "[JN58td]Digipeater",
        ">",
        "[EM10ck]",
        ">On air since 0700, 73^B7",
    });
    for (int i = 0; i < 40; ++i) {
        const Town& town = day.AnyTown();
        day.Add(day.Below(kDay), Join({NetHead(day, day.NewCall(town.prefix)), day.Pick(kInfos)}));
    }
    for (int i = 0; i < 14; ++i) {
        const Town& town = day.AnyTown();
        day.Add(day.Below(kDay), Join({NetHead(day, Join({town.prefix, "QSO-7"})), "Hill node !",
                                       packet_text::PlainPosition(day.Near(town), "/n")}));
    }
    for (int i = 0; i < 24; ++i) { // Places told only roughly, and clocks that are wrong.
        const Town& town = day.AnyTown();
        std::string position = packet_text::PlainPosition(day.Near(town), "/-");
        if (i % 2 == 0) {
            position.replace(i % 4 == 0 ? 6 : 5, i % 4 == 0 ? 1 : 2, i % 4 == 0 ? " " : "  ");
            day.Add(day.Below(kDay),
                    Join({NetHead(day, day.NewCall(town.prefix)), "=", position, AnyComment(day, town)}));
        } else {
            day.Add(day.Below(kDay),
                    Join({NetHead(day, day.NewCall(town.prefix)), "@000000z", position, AnyComment(day, town)}));
        }
    }
}

// Broken on the air, by a misread manual or by a full disk.
void AddBroken(SampleDay& day)
{
    constexpr auto kInfos = std::to_array<std::string_view>({
        "!48.1234/11.5678#",
        "=39.7392,-104.9903 home",
        "!4903.50N/0720",
        "!----.--N/-----.--W#",
        "@141200z",
        ";TOO SHORT",
        ";NOTIME   *4903.50N/07201.75Wr",
        ")AB!4903.50N/07201.75W-",
        ":N0BODY:misaddressed",
        "Valley fill-in digi",
        "UI node 1.9",
        "`abc",
        "$GPRMC,121212,V,,,,,,,140626,,*2A",
        "T#",
        "_0614",
        "!9100.00N/07201.75W-",
        "*7007600000000",
        "%reserved",
        "Club fill-in digi, 25 W \xd6\xfe",
    });
    for (int i = 0; i < 58; ++i) {
        const Town& town = day.AnyTown();
        day.Add(day.Below(kDay),
                Join({town.prefix, "QSO-4>BEACON,WIDE2-1,qAR,", town.prefix, "QTH-10:", day.Pick(kInfos)}));
    }
    day.Add(3 * kHour, "# server 2.1 14 Jun 2026 03:00:00 GMT T2NORTH");
    day.Add(9 * kHour, "N0QRX>APRS42");
    day.Add(11 * kHour, "N0 QRX>APRS42,WIDE1-1:>bad source");
    day.Add(13 * kHour, "N0QRX>APRS42,DIGI**:>bad path");
    day.Add(17 * kHour, "QRV?");
}

} // namespace

void AddTraffic(SampleDay& day)
{
    AddRepeaters(day);
    AddHappenings(day);
    AddMessages(day);
    AddTelemetry(day);
    AddThirdParty(day);
    AddOddities(day);
    AddBroken(day);
}

} // namespace ruvenmark::sample
