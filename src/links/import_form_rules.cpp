#include "links/import_form_rules.h"

#include "core/main_window.h"
#include "platform/failure.h"
#include "platform/numbers.h"

#include <algorithm>

namespace ruvenmark {

void frmImport_Load(ImportForm& form)
{
    form.iFLDelay = std::max<std::int16_t>(form.iFLDelay, 0);
    form.txtDelay = ShortText(std::int64_t{form.iFLDelay});
    form.chkAdd = form.bFLAdd;
    form.chkShow = form.bFLShow;
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
}

void frmImport_Cancel(ImportForm& form)
{
    form.iFLDelay = -1;
}

void LoadImportSettings(MainWindow& main)
{
    const ISettingsStore& store = main.services.store;
    main.frmImport.iFLDelay = ToInt16(store.Get("FLDelay", "0"));
    main.frmImport.bFLAdd = ToBool(store.Get("FLAdd", "True"));
    main.frmImport.bFLShow = ToBool(store.Get("FLShow", "True"));
    main.frmImport.bLoaded = true;
}

void SaveImportSettings(MainWindow& main)
{
    if (!main.frmImport.bLoaded)
        return;
    ISettingsStore& store = main.services.store;
    store.Set("FLDelay", ShortText(std::int64_t{main.frmImport.iFLDelay}));
    store.Set("FLAdd", BoolText(main.frmImport.bFLAdd));
    store.Set("FLShow", BoolText(main.frmImport.bFLShow));
}

} // namespace ruvenmark
