#pragma once

#include "DocumentFixture.h"

#include "forms/common/FileTaker.h"

#include <vector>

namespace vypx::test {

/// A file of one large icon.
inline Bytes SetOfOneIcon(const std::string& name)
{
    return Iconset{
        .name = name,
        .resources = { { "iTbl", 1000, IndexRecord("appl", "ALPH", 3500, 0) }, Picture(3500) }
    }.File();
}

/// Files that come from outside into the program as `Base` has it.
template <typename Base>
class FromOutside : public Base {
protected:
    bool Take(const QString& path) { return Taker().Take({ path, {} }); }
    FileTaker& Taker() { return this->frame->Form().FilesFromOutside(); }
    /// Collects what is given back from now on.
    void Watch()
    {
        QObject::connect(&Taker(), &FileTaker::GivenBack,
            [this](const OutsideFile& file) { givenBack.push_back(file.path); });
    }
    QString Set(const std::string& name = "set.prc")
    {
        return this->Written(SetOfOneIcon("Set"), name);
    }
    bool IsOpen(const std::string& name = "set.prc")
    {
        return FileLoaded && FileName == this->program.File(name);
    }
    /// Long enough for everything that looks at times.
    static void RunEvents() { QTest::qWait(700); }
    bool WaitUntilOpen(const std::string& name = "set.prc")
    {
        return QTest::qWaitFor([&] { return IsOpen(name); });
    }

    std::vector<QString> givenBack;
};

} // namespace vypx::test
