#include "bench.h"

int main() {
  bench::BenchRecords();
  bench::BenchPrintManager();
  bench::BenchStatus();
  bench::BenchPicture();
}
