// Reads the parameter file of the working directory through HDF5's C interface alone, in the way in which a storage
// does: element by element, each of the first as every type. None of our code is in it. It decides whether a file on
// which the library dies, hangs or runs out of memory is one on which HDF5 itself does.
//
//   reference_reader [--fill] [--impatient] [--until-crash | --until-hang] <folder>...
//
// --fill fills fresh memory, so that a use of it does not go by unseen; --impatient leaves out keys of too many values,
// as a run over many files does. --until-crash and --until-hang are for a file that has both faults, of which a program
// meets the one that its order brings first: each group and key has a process of its own, and only the fault that is
// asked for ends the whole.
#include "hostile/limits.h"

#include <hdf5.h>

#include <malloc.h>
#include <signal.h>
#include <stdlib.h>
#include <string.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <initializer_list>

namespace
{

constexpr hssize_t kReadAsEveryType = 3;

// As small as the storage's: where a file leads a conversion astray, it leaves a small buffer and the default of 1 MiB
// not.
constexpr size_t kConversionBufferBytes = 4096;

// Of processor time, for a process that may hang while a crash is looked for.
constexpr unsigned kSecondsBeforeACrash = 1;

enum class Until
{
  TheFirstFault,
  Crash,
  Hang
};

struct Manner
{
  const hid_t* begin;
  const hid_t* end;  // of the types to read as
  hid_t transfer;
  bool impatient;
  Until until;
};

void GiveTime(unsigned seconds)
{
  const itimerval work{{0, 0}, {static_cast<time_t>(seconds), 0}};
  setitimer(ITIMER_PROF, &work, nullptr);
}

[[noreturn]] void EndLike(int status)
{
  if (WIFSIGNALED(status))
  {
    signal(WTERMSIG(status), SIG_DFL);
    raise(WTERMSIG(status));
  }
  _exit(WEXITSTATUS(status));
}

// Calls a reader, in a process of its own where only one fault is to end this one.
template <class Reader>
void Apart(Manner manner, Reader reader)
{
  if (manner.until == Until::TheFirstFault)
  {
    reader();
    return;
  }
  const pid_t child = fork();
  if (child == 0)
  {
    GiveTime(manner.until == Until::Hang ? kHangSeconds : kSecondsBeforeACrash);
    reader();
    exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  const bool hung = WIFSIGNALED(status) && WTERMSIG(status) == SIGPROF;
  if (status != 0 && hung == (manner.until == Until::Hang))
  {
    EndLike(status);
  }
}

herr_t CountLink(hid_t, const char*, const H5L_info_t*, void* count)
{
  ++*static_cast<hsize_t*>(count);
  return 0;
}

hsize_t NumLinks(hid_t group)
{
  hsize_t count = 0;
  hsize_t start = 0;
  H5Literate(group, H5_INDEX_NAME, H5_ITER_INC, &start, CountLink, &count);
  return count;
}

// The name of a member, to be freed by the caller; null when there is none.
char* NameAt(hid_t group, hsize_t position)
{
  const ssize_t length = H5Lget_name_by_idx(group, ".", H5_INDEX_NAME, H5_ITER_INC, position, nullptr, 0, H5P_DEFAULT);
  if (length < 0)
  {
    return nullptr;
  }
  auto* name = static_cast<char*>(malloc(static_cast<size_t>(length) + 1));
  if (name != nullptr)
  {
    H5Lget_name_by_idx(group, ".", H5_INDEX_NAME, H5_ITER_INC, position, name, static_cast<size_t>(length) + 1,
                       H5P_DEFAULT);
  }
  return name;
}

void FollowReference(hid_t dataset, const hobj_ref_t* reference)
{
  H5O_type_t type = H5O_TYPE_UNKNOWN;
  if (H5Rget_obj_type2(dataset, H5R_OBJECT, reference, &type) < 0 || type != H5O_TYPE_GROUP)
  {
    return;
  }
  const hid_t target = H5Rdereference2(dataset, H5P_DEFAULT, H5R_OBJECT, reference);
  char name[1024];
  H5Iget_name(target, nullptr, 0);
  H5Iget_name(target, name, sizeof name);
  H5Oclose(target);
}

void ReadElement(hid_t dataset, hid_t type, hid_t transfer, hsize_t position)
{
  const hid_t space = H5Dget_space(dataset);
  const hsize_t one = 1;
  const hid_t memory = H5Screate_simple(1, &one, nullptr);
  H5Sselect_hyperslab(space, H5S_SELECT_SET, &position, nullptr, &one, nullptr);
  union
  {
    hvl_t sequence;
    hobj_ref_t reference;
    double number;
  } element;
  memset(&element, 0, sizeof element);
  const bool good = H5Dread(dataset, type, memory, space, transfer, &element) >= 0;
  if (H5Tget_class(type) == H5T_VLEN)
  {
    free(element.sequence.p);
  }
  else if (good && H5Tget_class(type) == H5T_REFERENCE)
  {
    FollowReference(dataset, &element.reference);
  }
  H5Sclose(memory);
  H5Sclose(space);
}

// The first elements as every type, or, in the second pass, all elements as the types of the dataset's class.
void ReadDataset(hid_t dataset, Manner manner, bool all)
{
  const hid_t space = H5Dget_space(dataset);
  const hssize_t count = H5Sget_select_npoints(space);
  const bool rank_one = H5Sget_simple_extent_ndims(space) == 1;
  H5Sclose(space);
  const hid_t type = H5Dget_type(dataset);
  const H5T_class_t type_class = H5Tget_class(type);
  H5Tclose(type);
  const hssize_t wanted = all ? (manner.impatient && count > kPatience ? 0 : count) : kReadAsEveryType;
  for (hssize_t i = 0; rank_one && i < count && i < wanted; ++i)
  {
    for (const hid_t* one = manner.begin; one != manner.end; ++one)
    {
      if (!all || H5Tget_class(*one) == type_class)
      {
        ReadElement(dataset, *one, manner.transfer, static_cast<hsize_t>(i));
      }
    }
  }
}

void ReadCommand(hid_t group, Manner manner, bool all)
{
  const hsize_t count = NumLinks(group);
  for (hsize_t i = 0; i < count; ++i)
  {
    Apart(manner, [&] {
      char* name = NameAt(group, i);
      const hid_t dataset = name != nullptr ? H5Dopen2(group, name, H5P_DEFAULT) : -1;
      if (dataset >= 0)
      {
        ReadDataset(dataset, manner, all);
        H5Dclose(dataset);
      }
      free(name);
    });
  }
}

// Calls a reader for each member group.
template <class Reader>
void ForEachGroup(hid_t group, Manner manner, Reader reader)
{
  H5G_info_t info;
  H5Gget_info(group, &info);
  const hsize_t count = NumLinks(group);
  for (hsize_t i = 0; i < count; ++i)
  {
    Apart(manner, [&] {
      char* name = NameAt(group, i);
      const hid_t member = name != nullptr ? H5Gopen2(group, name, H5P_DEFAULT) : -1;
      if (member >= 0)
      {
        reader(member);
        H5Gclose(member);
      }
      free(name);
    });
  }
}

hid_t OpenFile()
{
  const hid_t access = H5Pcreate(H5P_FILE_ACCESS);
  H5Pset_cache(access, 100, 5000, 0x40000000, 0.0);
  const hid_t file = H5Fopen("parfile_storage.hdf5", H5F_ACC_RDONLY, access);
  H5Pclose(access);
  return file;
}

// Fills memory that nothing was written to, so that a use of it does not go by unseen.
void FillFreshMemory()
{
  mallopt(M_PERTURB, 165);
  H5set_free_list_limits(0, 0, 0, 0, 0, 0);
}

void ReadFile(Manner manner)
{
  const hid_t file = OpenFile();
  const hid_t top = H5Gopen2(file, "/PARFILE", H5P_DEFAULT);
  if (top >= 0)
  {
    for (const bool all : {false, true})
    {
      ForEachGroup(top, manner, [&](hid_t kind) {
        ForEachGroup(kind, manner, [&](hid_t command) { ReadCommand(command, manner, all); });
      });
    }
    H5Gclose(top);
  }
  H5Fclose(file);
}

}  // namespace

int main(int argc, char** argv)
{
  Manner manner{nullptr, nullptr, H5Pcreate(H5P_DATASET_XFER), false, Until::TheFirstFault};
  H5Pset_buffer(manner.transfer, kConversionBufferBytes, nullptr, nullptr);
  int next = 1;
  for (; next < argc && strncmp(argv[next], "--", 2) == 0; ++next)
  {
    if (strcmp(argv[next], "--fill") == 0)
    {
      FillFreshMemory();
    }
    manner.impatient = manner.impatient || strcmp(argv[next], "--impatient") == 0;
    if (strcmp(argv[next], "--until-crash") == 0)
    {
      manner.until = Until::Crash;
    }
    else if (strcmp(argv[next], "--until-hang") == 0)
    {
      manner.until = Until::Hang;
    }
  }
  H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr);
  const hid_t types[] = {H5T_NATIVE_INT,
                         H5T_NATIVE_DOUBLE,
                         H5Tvlen_create(H5T_C_S1),
                         H5Tvlen_create(H5T_NATIVE_INT),
                         H5Tvlen_create(H5T_NATIVE_DOUBLE),
                         H5T_STD_REF_OBJ};
  manner.begin = types;
  manner.end = types + sizeof types / sizeof types[0];
  const int first = next;
  for (; next < argc; ++next)
  {
    if (next != first)  // which has the time that this program was started with
    {
      GiveTime(kHangSeconds);
    }
    if (chdir(argv[next]) == 0)
    {
      ReadFile(manner);
    }
  }
  return 0;
}
