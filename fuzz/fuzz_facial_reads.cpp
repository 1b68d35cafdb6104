// Random bytes as the host's facial-key INI file, through the reads and the cell set-up that
// InitManager makes for each of its 128 channels. fuzz_facial_ini runs InitManager itself, but
// nearly all of its time goes into building 128 fresh cells, which does not depend on the file:
// this target makes one cell a run and so reaches the file-driven code far more often.
#include "FuzzSupport.h"

#include "CKdFKModifyCellWidget.h"
#include "QKdFKModifyTableManager.h"

#include <iterator>

using namespace VelaFuzz;

namespace {

// Reaches the table's protected reads, as a host subclass can.
class ReadingTable : public QKdFKModifyTableManager
{
public:
    using QKdFKModifyTableManager::GetExtreme;
    using QKdFKModifyTableManager::GetSectionModifyString;
    using QKdFKModifyTableManager::QKdFKModifyTableManager;
};

// Channels per face section, as InitManager reads them; the last entry is a section outside the
// five, whose reads take the keys of the whole file.
const int kSectionChannels[] = { 8, 7, 10, 39, 64, 4 };

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const RunScope scope;
    const RunFile file(data, size);
    if (!file.isWritten())
        return 0;
    const QString &path = file.path();
    {
        ReadingTable table;
        CKdFKModifyCellWidget cell(nullptr);
        int row = 0;
        for (int section = 0; section < int(std::size(kSectionChannels)); ++section) {
            for (int index = 0; index < kSectionChannels[section]; ++index) {
                QString key;
                const QString label = table.GetSectionModifyString(path, section, index, key);
                cell.SetItem(row++, 0, label,
                             table.GetExtreme(path, QStringLiteral("SliderExtreme"), key),
                             table.GetExtreme(path, QStringLiteral("SpinBoxExtreme"), key), &table);
                // What the host reads back must stay inside the ranges just set.
                if (cell.GetValue() < cell.GetSpinMinimum()
                    || cell.GetValue() > cell.GetSpinMaximum())
                    __builtin_trap();
            }
        }
    }
    return 0;
}
