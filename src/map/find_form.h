#pragma once

#include <string>

namespace ruvenmark {

// frmFind: what is looked for stays until it is typed over.
struct FindForm {
    std::string txtFind;
};

} // namespace ruvenmark
