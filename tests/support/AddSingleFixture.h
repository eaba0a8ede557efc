#pragma once

#include "catalogs/AddApplication.h"
#include "support/EditFixture.h"

namespace vypx::test {

/// Before an entry is overwritten.
inline const CatalogBox Question{
    .text = "The application name you have entered already exists.\n"
            "Press OK to overwrite the existing application.",
    .title = "Application Already Exists!",
    .icon = CatalogBox::Icon::Exclamation,
    .asks = true,
};

/// Adds single files.
class AddingSingle : public Editing {
protected:
    /// With a file that exists by then.
    bool Add(const Bytes& file, const std::string& name = "app.prc")
    {
        Put(name, file);
        return AddSingle(InPalm(name), show);
    }
};

} // namespace vypx::test
