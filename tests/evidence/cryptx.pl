# For exchange.py: enciphers each line by CryptX. Arguments: cipher, key, IV; all in hexadecimal. RC5 and RC6 count 16 and
# 20 rounds.
use strict;
use warnings;
use Crypt::Mode::CBC;
use Crypt::Stream::Sosemanuk;

my ($name, $key, $iv) = ($ARGV[0], map { pack "H*", $_ } @ARGV[1, 2]);
my $rounds = { RC5 => 16, RC6 => 20 }->{$name};
$| = 1;
while (<STDIN>) {
    chomp;
    my $data = pack "H*", $_;
    my $result = $rounds ? Crypt::Mode::CBC->new($name, 0, $rounds)->encrypt($data, $key, $iv)
                         : Crypt::Stream::Sosemanuk->new($key, $iv)->crypt($data);
    print unpack("H*", $result), "\n";
}
