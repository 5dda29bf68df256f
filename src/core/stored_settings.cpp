#include "core/stored_settings.h"

#include "platform/numbers.h"
#include "platform/prompts.h"
#include "platform/settings_store.h"

namespace ruvenmark {

std::string StoredSettings::Text(Setting setting)
{
    return Readable(setting, DefaultOf(setting));
}

std::string StoredSettings::Readable(Setting setting, std::string absent)
{
    const SettingInfo& info = Info(setting);
    std::string text = m_store.Get(info.key, absent);
    if (IsReadable(info.kind, text))
        return text;
    const auto place = static_cast<std::size_t>(setting);
    if (!m_unreadable[place])
        m_notices.Say("setting " + std::string(info.key) + ": '" + text + "' cannot be used, '" + absent +
                      "' is taken");
    m_unreadable.set(place);
    return absent;
}

bool StoredSettings::Flag(Setting setting)
{
    return ToBool(Text(setting));
}

std::int16_t StoredSettings::Int16(Setting setting)
{
    return ToInt16(Text(setting));
}

std::int16_t StoredSettings::Int16(Setting setting, std::int16_t absent)
{
    return ToInt16(Readable(setting, ShortText(std::int64_t{absent})));
}

std::int32_t StoredSettings::Int32(Setting setting)
{
    return ToInt32(Text(setting));
}

double StoredSettings::Number(Setting setting)
{
    return ToDouble(Text(setting));
}

void StoredSettings::Set(Setting setting, std::string_view text)
{
    const auto place = static_cast<std::size_t>(setting);
    if (m_unreadable[place] && text == DefaultOf(setting))
        return; // Nobody changed it: what the operator once wrote there stays for him to mend.
    m_unreadable.reset(place);
    m_store.Set(Info(setting).key, text);
}

void StoredSettings::SetFlag(Setting setting, bool value)
{
    Set(setting, BoolText(value));
}

void StoredSettings::SetWhole(Setting setting, std::int64_t value)
{
    Set(setting, ShortText(value));
}

void StoredSettings::Flush()
{
    m_store.Flush();
}

} // namespace ruvenmark
