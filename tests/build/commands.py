"""Runs commands for the tests of this folder."""
import subprocess


def run(*command, env=None):
    """Returns a command's output, including errors. The command must succeed."""
    result = subprocess.run([str(word) for word in command], text=True, stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, env=env, check=False)
    if result.returncode != 0:
        raise AssertionError(f"{command} gave {result.returncode}:\n{result.stdout}")
    return result.stdout


def build_by_cmake(source, build, tools, *options, env=None):
    """Builds a project. `tools` are CMake, a generator and a compiler."""
    cmake, generator, compiler = tools
    run(cmake, "-G", generator, "-S", source, "-B", build, f"-DCMAKE_CXX_COMPILER={compiler}", *options, env=env)
    run(cmake, "--build", build, env=env)
