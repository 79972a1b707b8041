#include "com/cad_server.h"

#include "runtime/error.h"
#include "server/registration.h"

#include <filesystem>
#include <stdexcept>

namespace velmora::test {

namespace {

constexpr DWORD kPatienceMilliseconds = 60'000;

std::wstring server_path() {
    std::wstring own(1024, L'\0');
    own.resize(GetModuleFileNameW(nullptr, own.data(), static_cast<DWORD>(own.size())));
    return std::filesystem::path(own).replace_filename(L"velmora-cad-server.exe").wstring();
}

WindowsHandle start(const wchar_t* word = L"") {
    const std::wstring program = server_path();
    std::wstring line = L"\"" + program + L"\" " + word;
    STARTUPINFOW look{};
    look.cb = sizeof(look);
    PROCESS_INFORMATION made{};
    if (CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &look, &made) == FALSE)
        throw std::runtime_error("the CAD server does not start");
    CloseHandle(made.hThread);
    return WindowsHandle(made.hProcess);
}

void wait_until_ready(HANDLE ready, HANDLE process) {
    const HANDLE either[] = {ready, process};
    if (WaitForMultipleObjects(2, either, FALSE, kPatienceMilliseconds) != WAIT_OBJECT_0)
        throw std::runtime_error("the CAD server did not become ready");
}

com::LateBound running_server() {
    auto apartment = std::make_shared<const com::Apartment>();
    IUnknown* found = nullptr;
    if (FAILED(GetActiveObject(kStandInClass, nullptr, &found)))
        throw std::runtime_error("the CAD server is not among the active objects");
    const com::ComPtr<IUnknown> object(found);
    void* automation = nullptr;
    if (FAILED(object->QueryInterface(IID_IDispatch, &automation)))
        throw std::runtime_error("the CAD server has no automation");
    return {std::move(apartment), com::ComPtr<IDispatch>(static_cast<IDispatch*>(automation))};
}

} // namespace

unsigned long run_cad_server(const wchar_t* word) {
    const WindowsHandle process = start(word);
    unsigned long code = STILL_ACTIVE;
    WaitForSingleObject(process.get(), kPatienceMilliseconds);
    GetExitCodeProcess(process.get(), &code);
    return code;
}

CadServer::CadServer() {
    const WindowsHandle ready(CreateEventW(nullptr, TRUE, FALSE, L"velmora-cad-server-ready"));
    process_ = start();
    wait_until_ready(ready.get(), process_.get());
    application_ = running_server();
}

CadServer::~CadServer() {
    trap([&] { application_->call(L"Quit"); }, [](const RuntimeError&) {});
    application_.reset();
    if (WaitForSingleObject(process_.get(), kPatienceMilliseconds) != WAIT_OBJECT_0)
        kill();
}

void CadServer::say(std::initializer_list<const char*> lines) {
    for (const char* line : lines)
        application_->call(L"Say", com::Variant::text(line));
}

std::string CadServer::shown() {
    return application_->get(L"Shown").as_text();
}

std::string CadServer::prompt() {
    return application_->get(L"Prompt").as_text();
}

void CadServer::kill() {
    TerminateProcess(process_.get(), 1);
    WaitForSingleObject(process_.get(), kPatienceMilliseconds);
}

} // namespace velmora::test
