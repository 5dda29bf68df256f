#include "platform/program_name.h"

namespace ruvenmark {

std::string_view ProgramVersion()
{
    return RUVENMARK_VERSION;
}

} // namespace ruvenmark
