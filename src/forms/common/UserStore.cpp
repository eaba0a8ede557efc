#include "forms/common/UserStore.h"

#include <QSettings>

namespace vypx {

namespace {

constexpr const char* Program = "VY Pixelworks";
constexpr const char* ShowTips = "Options/Show Tips at Startup";

} // namespace

bool ShowTipsAtStartup()
{
    return QSettings(Program, Program).value(ShowTips, "1").toString() == "1";
}

void SaveShowTipsAtStartup(bool show)
{
    QSettings(Program, Program).setValue(ShowTips, show ? "1" : "0");
}

} // namespace vypx
