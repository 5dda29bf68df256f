#include "links/gps_form_rules.h"

#include "core/main_window.h"

#include <cstddef>

namespace ruvenmark {

namespace {

constexpr std::int16_t kDefaultBaudIndex = 2; // The TNC, which shares the stored value, takes another one.

} // namespace

void frmGps_Load(GpsForm& form)
{
    form.cboPort = form.sGPSPort;
    form.cboBaud = form.iGPSBaud;
    form.chkTracking = form.bTrackGpsPosition;
    form.chkAutoGPS = form.bAutoGPS;
    form.bConnect = false;
}

bool frmGps_Accept(MainWindow& main)
{
    GpsForm& form = main.frmGps;
    const auto place = static_cast<std::size_t>(form.cboBaud);
    if (form.cboPort.empty() || form.cboBaud < 0 || place >= kGpsBauds.size()) {
        main.services.prompts.Message("You must select port and baud rate!");
        return false;
    }
    if (main.links.bSerialConnected && form.cboPort == main.commDialog.sSerialPort) {
        main.services.prompts.Message("You are already connected to TNC on " + form.cboPort + "!");
        return false;
    }
    form.sGPSPort = form.cboPort;
    form.iGPSBaud = static_cast<std::int16_t>(form.cboBaud);
    form.lGPSBaud = kGpsBauds[place];
    form.bTrackGpsPosition = form.chkTracking;
    form.bAutoGPS = form.chkAutoGPS;
    form.bConnect = true;
    return true;
}

void LoadGpsSettings(MainWindow& main)
{
    GpsForm& form = main.frmGps;
    form.sGPSPort = main.stored.Text(Setting::GPSPort);
    form.iGPSBaud = main.stored.Int16(Setting::BaudIndex, kDefaultBaudIndex);
    form.lGPSBaud = main.stored.Int32(Setting::GPSBaud);
    form.bTrackGpsPosition = main.stored.Flag(Setting::TrackGPS);
    form.bAutoGPS = main.stored.Flag(Setting::AutoGPS);
    form.bConnect = true; // Who connects without the dialog takes these.
}

void SaveGpsSettings(MainWindow& main)
{
    const GpsForm& form = main.frmGps;
    main.stored.Set(Setting::GPSPort, form.sGPSPort);
    main.stored.SetWhole(Setting::BaudIndex, form.iGPSBaud);
    main.stored.SetWhole(Setting::GPSBaud, form.lGPSBaud);
    main.stored.SetFlag(Setting::TrackGPS, form.bTrackGpsPosition);
    main.stored.SetFlag(Setting::AutoGPS, form.bAutoGPS);
}

} // namespace ruvenmark
