// The functions of the system's libraries that a slice must not call. These replace the libraries' own for the whole
// program, record the call and pass it on.
#include <dlfcn.h>
#include <linux/futex.h>
#include <poll.h>
#include <pthread.h>
#include <semaphore.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

namespace TestSupport {
void noteIfInside(const char* call);
}

using TestSupport::noteIfInside;

namespace {

// The library's own function of this name.
template <class Function>
Function* find(Function*, const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

// The same for functions of which the library also has an older version.
template <class Function>
Function* findNewest(Function* function, const char* name) {
    if (void* newest = dlvsym(RTLD_NEXT, name, "GLIBC_2.3.2"))
        return reinterpret_cast<Function*>(newest);
    return find(function, name);
}

}

// The heap, whose own functions have second names that needn't be looked up.
extern "C" {

void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* memory);

void* malloc(std::size_t size) noexcept {
    noteIfInside("malloc");
    return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size) noexcept {
    noteIfInside("calloc");
    return __libc_calloc(count, size);
}

void* realloc(void* memory, std::size_t size) noexcept {
    noteIfInside("realloc");
    return __libc_realloc(memory, size);
}

void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept {
    noteIfInside("aligned_alloc");
    return __libc_memalign(alignment, size);
}

int posix_memalign(void** memory, std::size_t alignment, std::size_t size) noexcept {
    noteIfInside("posix_memalign");
    *memory = __libc_memalign(alignment, size);
    return *memory ? 0 : ENOMEM;
}

void free(void* memory) noexcept {
    if (memory)
        noteIfInside("free");
    __libc_free(memory);
}

// Locks and waits. Merely trying is allowed.
int pthread_mutex_lock(pthread_mutex_t* mutex) noexcept {
    noteIfInside("pthread_mutex_lock");
    static auto* const own = find(pthread_mutex_lock, "pthread_mutex_lock");
    return own(mutex);
}

int pthread_rwlock_rdlock(pthread_rwlock_t* lock) noexcept {
    noteIfInside("pthread_rwlock_rdlock");
    static auto* const own = find(pthread_rwlock_rdlock, "pthread_rwlock_rdlock");
    return own(lock);
}

int pthread_rwlock_wrlock(pthread_rwlock_t* lock) noexcept {
    noteIfInside("pthread_rwlock_wrlock");
    static auto* const own = find(pthread_rwlock_wrlock, "pthread_rwlock_wrlock");
    return own(lock);
}

int pthread_cond_wait(pthread_cond_t* condition, pthread_mutex_t* mutex) {
    noteIfInside("pthread_cond_wait");
    static auto* const own = findNewest(pthread_cond_wait, "pthread_cond_wait");
    return own(condition, mutex);
}

int pthread_cond_timedwait(pthread_cond_t* condition, pthread_mutex_t* mutex, const struct timespec* end) {
    noteIfInside("pthread_cond_timedwait");
    static auto* const own = findNewest(pthread_cond_timedwait, "pthread_cond_timedwait");
    return own(condition, mutex, end);
}

int pthread_cond_clockwait(pthread_cond_t* condition, pthread_mutex_t* mutex, clockid_t clock,
                           const struct timespec* end) {
    noteIfInside("pthread_cond_clockwait");
    static auto* const own = find(pthread_cond_clockwait, "pthread_cond_clockwait");
    return own(condition, mutex, clock, end);
}

int sem_wait(sem_t* semaphore) {
    noteIfInside("sem_wait");
    static auto* const own = find(sem_wait, "sem_wait");
    return own(semaphore);
}

int poll(struct pollfd* descriptors, nfds_t count, int milliseconds) {
    noteIfInside("poll");
    static auto* const own = find(poll, "poll");
    return own(descriptors, count, milliseconds);
}

int nanosleep(const struct timespec* length, struct timespec* rest) {
    noteIfInside("nanosleep");
    static auto* const own = find(nanosleep, "nanosleep");
    return own(length, rest);
}

int clock_nanosleep(clockid_t clock, int flags, const struct timespec* time, struct timespec* rest) {
    noteIfInside("clock_nanosleep");
    static auto* const own = find(clock_nanosleep, "clock_nanosleep");
    return own(clock, flags, time, rest);
}

int sched_yield() noexcept {
    noteIfInside("sched_yield");
    static auto* const own = find(sched_yield, "sched_yield");
    return own();
}

// Waiting for a condition or for a word that changes ends up here.
long syscall(long number, ...) noexcept {
    std::va_list list;
    va_start(list, number);
    long words[6];
    for (long& word : words)
        word = va_arg(list, long);
    va_end(list);
    const long operation = words[1] & FUTEX_CMD_MASK;
    if (number == SYS_futex && (operation == FUTEX_WAIT || operation == FUTEX_WAIT_BITSET))
        noteIfInside("futex wait");
    static auto* const own = find(syscall, "syscall");
    return own(number, words[0], words[1], words[2], words[3], words[4], words[5]);
}

// The clock.
int clock_gettime(clockid_t clock, struct timespec* time) noexcept {
    noteIfInside("clock_gettime");
    static auto* const own = find(clock_gettime, "clock_gettime");
    return own(clock, time);
}

// Files and logs.
ssize_t write(int descriptor, const void* bytes, std::size_t count) {
    noteIfInside("write");
    static auto* const own = find(write, "write");
    return own(descriptor, bytes, count);
}

ssize_t read(int descriptor, void* bytes, std::size_t count) {
    noteIfInside("read");
    static auto* const own = find(read, "read");
    return own(descriptor, bytes, count);
}

std::FILE* fopen(const char* path, const char* mode) {
    noteIfInside("fopen");
    static auto* const own = find(fopen, "fopen");
    return own(path, mode);
}

std::size_t fwrite(const void* bytes, std::size_t size, std::size_t count, std::FILE* file) {
    noteIfInside("fwrite");
    static auto* const own = find(fwrite, "fwrite");
    return own(bytes, size, count, file);
}

int fputs(const char* text, std::FILE* file) {
    noteIfInside("fputs");
    static auto* const own = find(fputs, "fputs");
    return own(text, file);
}

int vfprintf(std::FILE* file, const char* format, std::va_list arguments) {
    noteIfInside("vfprintf");
    static auto* const own = find(vfprintf, "vfprintf");
    return own(file, format, arguments);
}

int fprintf(std::FILE* file, const char* format, ...) {
    noteIfInside("fprintf");
    std::va_list arguments;
    va_start(arguments, format);
    const int count = vfprintf(file, format, arguments);
    va_end(arguments);
    return count;
}
}
