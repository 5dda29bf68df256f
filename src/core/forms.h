#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace ruvenmark {

struct MainWindow;

// The dialogs, by their names. The fields of each are a struct of the logic that outlives its window; its rules are
// functions beside that struct.
enum class Form : std::uint8_t {
    frmRegion,
    frmImport,
    frmTrackList,
    frmAbout,
    frmFilter,
    frmFind,
    commDialog,
    frmTcp,
    frmGps,
    frmWx,
    frmGpsPanel,
    frmTnc,
    frmTcpData,
    frmPosition,
    frmWeather,
    frmStatus,
    frmObject,
    frmMessage,
    frmOpenMessage,
    frmOptions,
    frmTiles
};
inline constexpr std::array kForms = {
    Form::frmRegion,      Form::frmImport,   Form::frmTrackList, Form::frmAbout,  Form::frmFilter,   Form::frmFind,
    Form::commDialog,     Form::frmTcp,      Form::frmGps,       Form::frmWx,     Form::frmGpsPanel, Form::frmTnc,
    Form::frmTcpData,     Form::frmPosition, Form::frmWeather,   Form::frmStatus, Form::frmObject,   Form::frmMessage,
    Form::frmOpenMessage, Form::frmOptions,  Form::frmTiles};

constexpr std::size_t Index(Form form)
{
    return static_cast<std::size_t>(form);
}

// The windows of the dialogs, as the logic opens them. A command loads the form's fields and says "cancelled" in them
// before it opens the window; only the button that accepts takes that off. So whatever closes a window, be it the end
// of the program, cancels it.
class IDialogs {
public:
    virtual ~IDialogs() = default;

    // Modal: back when the window is closed. Anything may have changed by then.
    virtual void Run(Form form, MainWindow& main) = 0;

    // Modeless: shown with its fields as they are, or brought to the front.
    virtual void Show(Form form, MainWindow& main) = 0;
    virtual void Hide(Form form) = 0;
    virtual bool IsVisible(Form form) const = 0; // One that is minimised or stands aside counts.
    virtual void Refresh(Form form) = 0;         // The logic has changed its fields.
    // Out of the way, such as while the map is clicked, and back in front.
    virtual void StandAside(Form form) = 0;
    virtual void ComeBack(Form form) = 0;
};

} // namespace ruvenmark
