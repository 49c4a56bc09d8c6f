#pragma once

#include <QList>
#include <QStringList>

// A table of cases kept as a text file under tests/, beside the tests that read it: a row a
// line, its fields separated by tabs; empty lines and lines that begin with # are left out.
// In a field, \n stands for a line break, \r for a carriage return, \t for a tab and \\ for a
// backslash. A row may leave out empty fields at its end: read them with value(). The path is
// taken from tests/, as in "core/model/golden/agentkeys.tsv"; a file that cannot be read fails
// the test that asked for it.
QList<QStringList> tableRows(const char* path);

// The text of a file under tests/, as tableRows() finds it; a file that cannot be read fails
// the test that asked for it.
QString testFileText(const char* path);
