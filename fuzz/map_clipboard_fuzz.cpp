// Any bytes on the clipboard: the menu says whether they can be pasted, and pasting does just that; what was pasted can
// be copied and pasted once more.

#include "map/edit_commands.h"
#include "require.h"
#include "support/test_program.h"

#include <cstdint>

namespace {

using namespace ruvenmark;

std::size_t CountObjects(TestProgram& program)
{
    return program.TheMap().Pins().Count() + program.TheMap().Shapes().Count();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    TestProgram program;
    program.desktop.clipboard.assign(data, data + size);
    const bool bCanPaste = CanPaste(program.main);
    mnuEditPaste_Click(program.main);
    const std::size_t pasted = CountObjects(program);
    Require((pasted > 0) == bCanPaste && program.main.abandoned.IsEmpty());
    if (!bCanPaste)
        return 0;
    mnuEditCopy_Click(program.main);
    Require(CanPaste(program.main));
    mnuEditPaste_Click(program.main);
    Require(CountObjects(program) == pasted + 1);
    mnuEditCut_Click(program.main);
    Require(CountObjects(program) == pasted && program.main.abandoned.IsEmpty());
    return 0;
}
