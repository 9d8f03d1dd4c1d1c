// Any bytes are a list of valid rows, and the form shows each of them.

#include "files/modifier_list.h"
#include "require.h"
#include "ui/test_desktop.h"

#include <cstddef>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size)
{
    using namespace warhost;
    static TemporaryFolder const folder;
    std::string const bytes{as_text(data, size)};
    folder.write("modif.txt", bytes);
    TestDesktop desktop;
    desktop.directory = folder.path();
    ScriptedRandom random;
    Main form{desktop, random};
    form.Form_Load();
    while (form.add_misc_row()) {}

    ModifierList list{bytes};
    int rows = 0;
    while (auto const entry = list.next()) {
        ++rows;
        require(entry->low <= entry->high && -32000 <= entry->low && entry->high <= 32000);
        require(entry->initial == entry->low || entry->initial == entry->high);
        require(!entry->name.starts_with(' ') && !entry->name.ends_with(' '));
        ComboBox const& value = form.cmbMisc(rows);
        require(value.text() == SignedText(entry->initial) && value.list_size() == entry->high - entry->low + 1);
        require(value.listed_index() >= 0 && value.help_topic == entry->help_topic);
        require(form.chkMisc(rows).caption().starts_with(entry->name));
    }
    require(2 * rows <= 1 + std::count(bytes.begin(), bytes.end(), '\n'));
    require(form.chkMisc.highest() == rows && form.cmbMisc.highest() == rows && desktop.boxes.empty());
    return 0;
}
