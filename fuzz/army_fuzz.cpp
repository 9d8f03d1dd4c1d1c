// Any bytes are either rejected and change nothing, or they are an army that can be loaded, edited and saved unchanged.

#include "files/army_format.h"
#include "require.h"
#include "ui/test_desktop.h"

#include <atomic>
#include <cstddef>
#include <sanitizer/allocator_interface.h>
#include <string>
#include <string_view>

namespace {

using namespace warhost;

std::atomic<std::size_t> in_use = 0, most_in_use = 0; // bytes

void count_allocation(void const volatile* /*memory*/, std::size_t size)
{
    most_in_use = std::max<std::size_t>(most_in_use, in_use += size);
}

void count_release(void const volatile* memory)
{
    if (memory != nullptr) in_use -= __sanitizer_get_allocated_size(memory);
}

void decode_within_bounds(std::string_view bytes)
{
    static bool const installed = __sanitizer_install_malloc_and_free_hooks(count_allocation, count_release) != 0;
    require(installed);
    std::size_t const before = most_in_use = in_use.load();
    try {
        std::string const saved = encode_army(decode_army(bytes));
        require(bytes.starts_with(saved));
        require(encode_army(decode_army(saved)) == saved);
    } catch (Failure const& failure) {
        require(failure.number == static_cast<int>(Fault::file_too_short));
    }
    require(most_in_use - before <= 12 * bytes.size() + 100000);
}

/// Compares bytes: a level in a file may be a NaN, which does not equal itself.
bool same(Army const& a, Army const& b) { return encode_army(a) == encode_army(b); }

void load_edit_and_save(std::string const& bytes)
{
    static Program program;
    auto& [folder, desktop, random, form] = program;
    desktop.chosen = folder.path("x.Army");
    desktop.boxes.clear();
    desktop.requests.clear();
    Army const before = form.CurArmy;
    folder.write("x.Army", bytes);
    form.cmdLoadArmy.press();
    if (!desktop.boxes.empty()) {
        require(desktop.boxes.size() == 1 && same(form.CurArmy, form.ArmyA));
        require(form.CurArmy.Name == before.Name && form.CurArmy.UnitNum == before.UnitNum);
        return;
    }
    form.txtUnitNum(0).set_text("7 men");
    require(form.CurArmy.UnitNum[0] == 7 && same(form.CurArmy, form.ArmyA));
    form.cmdSaveArmy.press();
    require(desktop.boxes.empty() && same(decode_army(folder.read("x.Army")), form.CurArmy));
    require(folder.names() == std::set<std::string>{"modif.txt", "x.Army"});
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size)
{
    std::string_view const bytes = as_text(data, size);
    decode_within_bounds(bytes);
    load_edit_and_save(std::string{bytes});
    return 0;
}
