// How a text with styles is saved.
#pragma once

enum class TextFileType { Rich = 0, Plain = 1 };
