#ifndef XMLHELPER_BENCHMARKS_ROWS_H
#define XMLHELPER_BENCHMARKS_ROWS_H

#include <vector>

#include "harness.h"

class Workspace;

// The rows of the table, by what they measure. The workspace must outlive them.

std::vector<Row> readRows(const Workspace& workspace);
std::vector<Row> searchRows(const Workspace& workspace);
std::vector<Row> schemaRows(const Workspace& workspace);
std::vector<Row> walkRows(const Workspace& workspace);
std::vector<Row> fillRows(const Workspace& workspace);
std::vector<Row> occursRows(const Workspace& workspace);
std::vector<Row> saveRows(const Workspace& workspace);
std::vector<Row> writerRows(const Workspace& workspace);
std::vector<Row> jobRows(const Workspace& workspace);
std::vector<Row> buttonRows(const Workspace& workspace);

#endif
