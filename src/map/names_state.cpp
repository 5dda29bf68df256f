#include "map/names_state.h"

#include "core/main_window.h"
#include "platform/numbers.h"

namespace ruvenmark {

std::int32_t NamesState(const MainWindow& main, Channel channel)
{
    if (const auto setting = Traits(channel).namesSetting)
        return SettingInt32(main.Settings, *setting);
    return main.frmImport.bFLShow ? 1 : 0;
}

void SetNamesState(MainWindow& main, Channel channel, bool bShow)
{
    if (const auto setting = Traits(channel).namesSetting)
        SetSetting(main.Settings, *setting, bShow ? "1" : "0");
    else
        main.frmImport.bFLShow = bShow;
}

bool IsNamesState(const MainWindow& main, Channel channel, bool bShow)
{
    const auto setting = Traits(channel).namesSetting;
    if (setting && !ReadNumber(SettingText(main.Settings, *setting)))
        return false;
    return NamesState(main, channel) == (bShow ? 1 : 0);
}

} // namespace ruvenmark
