// A tool that saves record after record into the store at the path given, until it is killed.
#include "hostlink/ExchangeStore.h"
#include "store/StampedRecord.h"
#include "support/ToolBench.h"

int main(int argc, char **argv)
{
    if (argc != 2)
        return 2;
    penwright::test::ToolBench bench;
    penwright::SqliteSettingsStore store(argv[1]);
    penwright::ExchangeStore exchange(bench.state, store, bench.dialogs);
    for (int i = 1;; i = i % 30000 + 1) {
        bench.state.PhotFiles(1) = penwright::test::stamped(i);
        exchange.SaveRecordsToStore(1, 1, 1);
    }
}
