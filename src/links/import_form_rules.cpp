#include "links/import_form_rules.h"

#include "core/main_window.h"
#include "platform/failure.h"
#include "platform/numbers.h"

#include <algorithm>

namespace ruvenmark {

void frmImport_Load(ImportForm& form)
{
    form.txtDelay = ShortText(std::max(std::int64_t{form.iFLDelay}, std::int64_t{0}));
    form.chkAdd = form.bFLAdd;
    form.chkShow = form.bFLShow;
    form.cboSpeed = form.speed;
    form.iFLDelay = kLoadCancelled;
}

std::string frmImport_txtDelay_LostFocus(const ImportForm& form)
{
    if (form.txtDelay.empty())
        return {};
    try {
        if (ToInt16(form.txtDelay) >= 0)
            return {};
    } catch (const Failure&) { // No number is no delay either: the operator is told, nothing typed is lost.
    }
    return "Enter a non negative number for delay!";
}

void frmImport_Accept(ImportForm& form)
{
    form.iFLDelay = form.txtDelay.empty() ? std::int16_t{0} : ToInt16(form.txtDelay);
    form.bFLAdd = form.chkAdd;
    form.bFLShow = form.chkShow;
    form.speed = form.cboSpeed;
}

void LoadImportSettings(MainWindow& main)
{
    ImportForm& form = main.frmImport;
    form.iFLDelay = main.stored.Int16(Setting::FLDelay);
    form.bFLAdd = main.stored.Flag(Setting::FLAdd);
    form.bFLShow = main.stored.Flag(Setting::FLShow);
}

void SaveImportSettings(MainWindow& main)
{
    const ImportForm& form = main.frmImport;
    main.stored.SetWhole(Setting::FLDelay, form.iFLDelay);
    main.stored.SetFlag(Setting::FLAdd, form.bFLAdd);
    main.stored.SetFlag(Setting::FLShow, form.bFLShow);
}

} // namespace ruvenmark
