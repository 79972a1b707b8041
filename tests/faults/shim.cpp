// The calls are caught by a filter of the kernel, which hands each to a signal handler; the handler
// passes it on by the one instruction that the filter lets through. For 64-bit x86.
//
// Environment of a preloaded one: VELMORA_FAULT_AT, VELMORA_FAULT_KIND, as for `faults_begin`.
#include "shim.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <ucontext.h>
#include <unistd.h>
#include <vector>

#ifdef __x86_64__

extern "C" {
long faults_raw_call(long number, long a, long b, long c, long d, long e, long f);
extern const char faults_raw_call_return[];
}

asm(".text\n"
    ".globl faults_raw_call\n"
    ".type faults_raw_call,@function\n"
    "faults_raw_call:\n"
    "  mov %rdi, %rax\n"
    "  mov %rsi, %rdi\n"
    "  mov %rdx, %rsi\n"
    "  mov %rcx, %rdx\n"
    "  mov %r8, %r10\n"
    "  mov %r9, %r8\n"
    "  mov 8(%rsp), %r9\n"
    "  syscall\n"
    ".globl faults_raw_call_return\n"
    "faults_raw_call_return:\n"
    "  ret\n"
    ".size faults_raw_call, .-faults_raw_call\n"
    ".section .note.GNU-stack,\"\",@progbits\n"
    ".text\n");

namespace {

constexpr auto caught = std::to_array<long>({
    SYS_open,       SYS_openat,
    SYS_creat,      SYS_read,
    SYS_pread64,    SYS_readv,
    SYS_write,      SYS_pwrite64,
    SYS_writev,     SYS_close,
    SYS_fsync,      SYS_fdatasync,
    SYS_rename,     SYS_renameat,
    SYS_renameat2,  SYS_unlink,
    SYS_unlinkat,   SYS_link,
    SYS_linkat,     SYS_symlink,
    SYS_symlinkat,  SYS_mkdir,
    SYS_mkdirat,    SYS_rmdir,
    SYS_truncate,   SYS_ftruncate,
    SYS_fallocate,  SYS_chmod,
    SYS_fchmod,     SYS_fchmodat,
    SYS_stat,       SYS_lstat,
    SYS_fstat,      SYS_newfstatat,
    SYS_statx,      SYS_access,
    SYS_faccessat,  SYS_readlink,
    SYS_readlinkat, SYS_getdents64,
    SYS_lseek,      SYS_utimensat,
    SYS_statfs,     SYS_fstatfs,
    SYS_flock,      SYS_copy_file_range,
    SYS_sendfile,   SYS_chown,
    SYS_fchown,     SYS_fchownat,
});

std::atomic<bool> counting{false};
std::atomic<long> calls{0};
std::atomic<long> met{-1};
long chosen = 0;
int chosen_kind = fault_none;

struct Call {
    long number;
    std::array<long, 6> arguments;

    [[nodiscard]] long pass_on() const {
        const auto& a = arguments;
        return faults_raw_call(number, a[0], a[1], a[2], a[3], a[4], a[5]);
    }
    /// What the test's own report goes through.
    [[nodiscard]] bool is_report() const {
        return (number == SYS_write || number == SYS_writev) && arguments[0] <= 2;
    }
};

long half_written(Call call) {
    if ((call.number == SYS_write || call.number == SYS_pwrite64) && call.arguments[2] > 1)
        call.arguments[2] /= 2;
    return call.pass_on();
}

long fail(const Call& call) {
    met = call.number;
    if (chosen_kind == fault_kill)
        faults_raw_call(SYS_kill, faults_raw_call(SYS_getpid, 0, 0, 0, 0, 0, 0), SIGKILL, 0, 0, 0,
                        0);
    if (chosen_kind == fault_short)
        return half_written(call);
    if (call.number == SYS_close) // a failed close has closed all the same
        (void)call.pass_on();
    return -chosen_kind;
}

long answer(const Call& call) {
    if (!counting || call.is_report())
        return call.pass_on();
    return ++calls == chosen ? fail(call) : call.pass_on();
}

void on_call(int /*signal*/, siginfo_t* info, void* context) {
    auto& registers = static_cast<ucontext_t*>(context)->uc_mcontext.gregs;
    const Call call{info->si_syscall,
                    {registers[REG_RDI], registers[REG_RSI], registers[REG_RDX], registers[REG_R10],
                     registers[REG_R8], registers[REG_R9]}};
    registers[REG_RAX] = answer(call);
}

sock_filter load(std::uint32_t offset) {
    return BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offset);
}

sock_filter equal(std::uint32_t value, std::size_t then, std::size_t otherwise) {
    return BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, value, static_cast<std::uint8_t>(then),
                    static_cast<std::uint8_t>(otherwise));
}

std::vector<sock_filter> filter() {
    const auto ours = reinterpret_cast<std::uintptr_t>(faults_raw_call_return);
    constexpr std::uint32_t place = offsetof(seccomp_data, instruction_pointer);
    std::vector<sock_filter> steps{
        load(place), equal(static_cast<std::uint32_t>(ours), 0, 2), load(place + 4),
        equal(static_cast<std::uint32_t>(ours >> 32), caught.size() + 1, 0),
        load(offsetof(seccomp_data, nr))};
    for (std::size_t i = 0; i < caught.size(); ++i)
        steps.push_back(equal(static_cast<std::uint32_t>(caught[i]), caught.size() - i, 0));
    steps.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    steps.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRAP));
    return steps;
}

bool stand_between() {
    static bool stands = false;
    if (stands)
        return true;
    struct sigaction action = {};
    action.sa_sigaction = on_call;
    action.sa_flags = SA_SIGINFO | SA_NODEFER | SA_RESTART;
    auto steps = filter();
    const sock_fprog program{static_cast<unsigned short>(steps.size()), steps.data()};
    stands = sigaction(SIGSYS, &action, nullptr) == 0 &&
             prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
             prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
    return stands;
}

long number_in(const char* name) {
    const char* text = std::getenv(name);
    return text == nullptr ? 0 : std::strtol(text, nullptr, 10);
}

[[gnu::constructor]] void obey_the_environment() {
    if (const long at = number_in("VELMORA_FAULT_AT"); at > 0)
        faults_begin(at, static_cast<int>(number_in("VELMORA_FAULT_KIND")));
}

} // namespace

bool faults_begin(long at, int kind) {
    chosen = at;
    chosen_kind = kind;
    calls = 0;
    met = -1;
    counting = stand_between();
    return counting;
}

#else

bool faults_begin(long, int) {
    return false;
}

namespace {
std::atomic<bool> counting{false};
std::atomic<long> calls{0}, met{-1};
} // namespace

#endif

long faults_end() {
    counting = false;
    return calls;
}

long faults_met() {
    return met;
}
