// The main function of the benchmarks that run within the program: the main window is up, over the
// person database beside this program.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "controls/desktop_host.h"
#include "runtime/event.h"
#include "shell/frmMain.h"

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    QApplication application(argc, argv);
    DesktopHost desktop;
    const HostInForce inForce(desktop);
    frmMain window;
    runEvent([&window] { window.Show(); });
    while (!window.testAttribute(Qt::WA_Mapped))
        desktop.yield();
    benchmark::RunSpecifiedBenchmarks();
}
