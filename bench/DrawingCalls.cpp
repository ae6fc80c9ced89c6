// Counts the calls that draw, by way of the import tables of the loaded modules.
#include "DrawingCalls.h"

#include <windows.h>

#include <psapi.h>

#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace drawingcalls {

namespace {

/// What puts pixels into a device context.
constexpr const char* Operations[] = {
    "AlphaBlend",     "BitBlt",       "DrawEdge",      "DrawFocusRect",   "DrawFrameControl",  "DrawIconEx",
    "DrawTextA",      "DrawTextExW",  "DrawTextW",     "Ellipse",         "ExtFloodFill",      "ExtTextOutA",
    "ExtTextOutW",    "FillPath",     "FillRect",      "FillRgn",         "FrameRect",         "FrameRgn",
    "GdiAlphaBlend",  "GradientFill", "InvertRect",    "GdiGradientFill", "GdiTransparentBlt", "LineTo",
    "MaskBlt",        "PaintRgn",     "PatBlt",        "PolyBezier",      "PolyPolygon",       "PolyTextOutW",
    "Polygon",        "Polyline",     "Rectangle",     "RoundRect",       "SetDIBitsToDevice", "SetPixel",
    "SetPixelV",      "StretchBlt",   "StretchDIBits", "StrokePath",      "TabbedTextOutW",    "TextOutW",
    "TransparentBlt",
};

bool IsDrawing(const char* name) {
    for (const char* const operation : Operations) {
        if (std::strcmp(operation, name) == 0)
            return true;
    }
    return false;
}

/// Code pages with one small function per operation: "inc [counter]; jmp [operation]". Such a function needs to know
/// nothing of the operation's parameters.
class CountingCode {
public:
    CountingCode() {
        constexpr DWORD size = 64 * 1024;
        m_page =
            static_cast<std::byte*>(::VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_EXECUTE_READWRITE));
        m_counter = reinterpret_cast<volatile std::uint64_t*>(m_page);
        m_next = m_page + sizeof(std::uint64_t);
    }
    std::uint64_t Count() const { return *m_counter; }

    void* InFrontOf(void* operation) {
        void*& function = m_functions[operation];
        if (function == nullptr)
            function = Write(operation);
        return function;
    }

private:
    void* Write(void* operation) {
        std::byte* const address = m_next;
        std::memcpy(address, &operation, sizeof(operation));
        std::byte* code = address + sizeof(operation);
        m_next = code + 16;
        void* const function = code;
        code = Instruction(code, "\x48\xFF\x05", 3, m_page); // inc qword ptr [counter]
        Instruction(code, "\xFF\x25", 2, address);           // jmp qword ptr [address]
        return function;
    }
    /// An operation code and the distance from behind the instruction to its operand.
    static std::byte* Instruction(std::byte* code, const char* bytes, std::size_t length, const std::byte* operand) {
        std::memcpy(code, bytes, length);
        std::byte* const end = code + length + sizeof(std::int32_t);
        const auto distance = static_cast<std::int32_t>(operand - end);
        std::memcpy(code + length, &distance, sizeof(distance));
        return end;
    }

    std::byte* m_page;
    volatile std::uint64_t* m_counter;
    std::byte* m_next;
    std::map<void*, void*> m_functions;
};

CountingCode& Code() {
    static CountingCode code;
    return code;
}

/// Redirects what the module imports.
void Redirect(HMODULE module) {
    auto* const base = reinterpret_cast<std::byte*>(module);
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS64*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (directory.VirtualAddress == 0)
        return;
    for (auto* from = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress); from->Name != 0;
         ++from) {
        if (from->OriginalFirstThunk == 0)
            continue;
        const auto* name = reinterpret_cast<const IMAGE_THUNK_DATA64*>(base + from->OriginalFirstThunk);
        auto* address = reinterpret_cast<IMAGE_THUNK_DATA64*>(base + from->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++address) {
            if (IMAGE_SNAP_BY_ORDINAL64(name->u1.Ordinal))
                continue;
            const auto* const import = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData);
            if (!IsDrawing(reinterpret_cast<const char*>(import->Name)))
                continue;
            DWORD protection = 0;
            ::VirtualProtect(&address->u1.Function, sizeof(address->u1.Function), PAGE_READWRITE, &protection);
            address->u1.Function =
                reinterpret_cast<ULONGLONG>(Code().InFrontOf(reinterpret_cast<void*>(address->u1.Function)));
            ::VirtualProtect(&address->u1.Function, sizeof(address->u1.Function), protection, &protection);
        }
    }
}

/// Modules of the system that draw with one another: a call that comes in is counted, what it is made of is not.
bool IsSystem(HMODULE module) {
    wchar_t name[MAX_PATH] = L"";
    ::GetModuleBaseNameW(::GetCurrentProcess(), module, name, MAX_PATH);
    for (const wchar_t* const system :
         {L"gdi32.dll", L"user32.dll", L"win32u.dll", L"msimg32.dll", L"uxtheme.dll", L"ntdll.dll"}) {
        if (::lstrcmpiW(name, system) == 0)
            return true;
    }
    return false;
}

} // namespace

void StartCounting() {
    std::vector<HMODULE> modules(1024);
    DWORD bytes = 0;
    const auto size = static_cast<DWORD>(modules.size() * sizeof(HMODULE));
    if (!::EnumProcessModules(::GetCurrentProcess(), modules.data(), size, &bytes))
        return;
    modules.resize(bytes / sizeof(HMODULE));
    for (const HMODULE module : modules) {
        if (!IsSystem(module))
            Redirect(module);
    }
}

std::uint64_t Count() { return Code().Count(); }

} // namespace drawingcalls
