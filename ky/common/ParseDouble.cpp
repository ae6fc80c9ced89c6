// The number parser that every value-entry control and numeric cell shares.
#include "ParseDouble.h"

#include "NumberText.h"

bool ParseDouble(const CString& text, double& value) {
    return numbertext::Parse({text.GetString(), static_cast<std::size_t>(text.GetLength())}, value);
}
